s/^ *([0-9]+) (.*[^ ]) +([^ ]+) +required {5}[A-Z]+ *$/\1 \3 required \2/p; t
s/^ *([0-9]+) (.*[^ ]) +([^ ]+) {14,}[A-Z]+ *$/\1 \3 - \2/p; t
s/^ *([0-9]+) (.*)  \[require an argument for customization\]$/\1 - required \2/p; t
s/^ *([0-9]+) (.*) $/\1 - - \2/p
