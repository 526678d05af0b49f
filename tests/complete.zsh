# complete.zsh PREFIX bash|zsh: types each line of stdin into that shell, as a user would, where the completions under
# PREFIX are known. Prints for each line the words that the shell then inserts for all completions, each ended by a
# blank; with LIST set, which is for zsh, what it shows instead. Run with zsh -f.
zmodload zsh/zpty
setopt extended_glob
prefix=$1 shell=$2
rc=$(mktemp -d)
trap 'rm -rf $rc' EXIT

# In both, ^Xa inserts all completions, and ^Xw writes the line down and empties it.
case $shell in
  bash)
    command="bash --noprofile --rcfile $rc/rc -i"
    cat >$rc/rc <<END
source $prefix/share/bash-completion/completions/hwknobs
write() { echo "\$READLINE_LINE" >$rc/line; READLINE_LINE=; echo 'done> ready> '; }
bind 'set enable-bracketed-paste off'
bind '"\C-xa": insert-completions'
bind -x '"\C-xw": write'
PS1='ready> '
END
    ;;
  zsh)
    command="ZDOTDIR=$rc zsh -d -i"
    cat >$rc/.zshrc <<END
unset zle_bracketed_paste
fpath=($prefix/share/zsh/site-functions \$fpath)
autoload -Uz compinit && compinit -u -D
insert_all() { _main_complete; compstate[insert]=all }
write() { print -r -- \$BUFFER >$rc/line; BUFFER=; zle -I; print 'done>' }
zle -C insert_all complete-word insert_all
zle -N write
bindkey -e
bindkey '^Xa' insert_all '^Xl' list-choices '^Xw' write
PS1='ready> '
END
    ;;
esac

zpty shell "cd ${(q)PWD} && PATH=${(q)PATH} TERM=xterm COLUMNS=200 $command"
zpty -r shell said '*ready> *'
while IFS= read -r line; do
  if [[ -n $LIST ]]; then
    zpty -wn shell "$line"$'\Cxl'
    zpty -r shell said '*-- *'
    print -rn -- "$said"
  fi
  zpty -wn shell "$line"$'\Cxa\Cxw'
  zpty -r shell said '*done>*ready> *'
  if [[ -n $LIST ]]; then print -r -- "$said"; continue; fi
  words=$(<$rc/line)
  typed=(${(z)line})
  if [[ $said == *(ERROR|Fail|not found|o such file)* ]]; then print -r -- "noise: $said"; continue; fi
  if [[ "$words " == "$typed"[[:blank:]]## ]]; then print; continue; fi
  # Without what was typed before the word under the cursor.
  [[ $line == *' ' ]] || typed[-1]=()
  print -r -- "${words#"$typed "}"
done
zpty -d shell
