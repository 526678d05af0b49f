const catalogue = JSON.parse(document.getElementById("catalogue").textContent);
const [platformBox, groupBox, wordsBox, tickedBox, count, list, line, platOption, block, notes] =
  ["platform", "group", "words", "ticked", "count", "knobs", "line", "plat_option", "block", "notes"]
    .map(id => document.getElementById(id));

let platform;        // the chosen one
let rows = [];       // its rows, each with its elements
let selected = [];   // the ticked rows, in the order of the command line
let missing = [];    // what was asked for and this platform does not have

function element(tag, properties, ...children) {
  const made = Object.assign(document.createElement(tag), properties);
  made.append(...children);
  return made;
}

const settingName = set => set.startsWith("&") ? set : `bootloader key ${set}`;

// ---- the list

// The same knob under other circumstances: another range, other labels.
function isVariant(a, b) {
  return a.desc === b.desc || (a.name !== undefined && a.name === b.name) ||
    (a.arg !== undefined && a.arg === b.arg && String(a.sets) === String(b.sets));
}

function elsewhere(row) {
  const same = [], variants = [];
  for (const other of catalogue.platforms) {
    if (other === platform) continue;
    const at = other.rows.find(([, knob]) => catalogue.knobs[knob] === row.knob);
    if (at) same.push(`${other.name} (${at[0]})`);
    const variant = at ? null : other.rows.find(([, knob]) => isVariant(catalogue.knobs[knob], row.knob));
    if (variant) variants.push(`${other.name} (${variant[0]})`);
  }
  return [element("p", {}, same.length ? `The same on ${same.join(", ")}` : "On no other platform the same"),
          ...(variants.length ? [element("p", {}, `With differences on ${variants.join(", ")}`)] : [])];
}

function alternatives(row) {
  const found = row.knob.sets.map(set => [set, rows.filter(other => other !== row && other.knob.sets.includes(set))]);
  return found.filter(([, others]) => others.length).map(([set, others]) =>
    element("div", {}, `Alternatives: they set ${settingName(set)} too`, element("ul", {}, ...others.map(other =>
      element("li", {}, element("button", {type: "button", className: "link", onclick: () => goTo(other)},
                                other.name), ` ${other.knob.desc}`)))));
}

function argumentField(row) {
  const {arg, allowed, desc} = row.knob;
  const takesAny = !allowed?.length;
  row.field = takesAny
    ? element("input", {type: "text", autocomplete: "off", spellcheck: false, autocapitalize: "off"})
    : element("select", {}, ...["", ...allowed].map(value => element("option", {value}, value || "choose")));
  row.field.setAttribute("aria-label", `Argument of: ${desc}`);
  row.field[takesAny ? "oninput" : "onchange"] = () => tick(row, true);
  const meaning = {int32: "signed number", uint32: "unsigned number", string: takesAny ? "letters, digits , - _" : ""};
  return element("p", {className: "argument"}, `argument ${argumentLetter[arg]} `, row.field, ` ${meaning[arg]}`);
}

function makeRow(knob, number, at) {
  const row = {knob, number, name: platform.named ? knob.name : String(number)};
  const {desc, group, key, value, fragment, arg} = knob;
  row.text = [number, row.name, desc, group, key, value, fragment, arg && "argument"].join(" ").toLowerCase();
  row.tick = element("input", {type: "checkbox", id: `row${at}`, onchange: () => tick(row, row.tick.checked)});
  row.sets = element("code", {className: "sets"});
  const about = [number, ...(platform.named ? [row.name] : []), ...(group ? [group] : [])].join(" · ");
  const more = element("details", {ontoggle: () => {
    if (more.childElementCount === 1) more.append(...alternatives(row), ...elsewhere(row));
  }}, element("summary", {ariaLabel: `More about: ${desc}`}, "More"));
  row.item = element("li", {}, row.tick, element("div", {},
    element("label", {htmlFor: row.tick.id}, desc), element("p", {className: "about"}, about),
    ...(argumentLetter[arg] ? [argumentField(row)] : []), row.sets, more));
  return row;
}

function showEffect(row, judged) {
  const {key, value, fragment} = row.knob;
  const fill = text => judged.refused === undefined ? render(text, judged.shown) : text;
  row.sets.replaceChildren(...(key ? [element("span", {className: "plenv"}, `${key}=${fill(value)}`)] : []),
                           ...(fragment ? [element("span", {className: "overlay"}, fill(fragment))] : []));
}

function filter() {
  const words = wordsBox.value.toLowerCase().split(/\s+/);
  let shown = 0;
  for (const row of rows) {
    row.item.hidden = !(["", row.knob.group ?? "none"].includes(groupBox.value) &&
      words.every(word => row.text.includes(word)) && (!tickedBox.checked || row.tick.checked));
    shown += !row.item.hidden;
  }
  count.textContent = `${shown} of ${rows.length}`;
}

function goTo(row) {
  if (row.item.hidden) {
    groupBox.value = wordsBox.value = "";
    tickedBox.checked = false;
    filter();
    saveState();
  }
  row.item.scrollIntoView({block: "center"});
  row.tick.focus({preventScroll: true});
}

function choosePlatform(name) {
  platform = catalogue.platforms.find(other => other.name === name) ?? catalogue.platforms.at(-1);
  platformBox.value = platform.name;
  rows = platform.rows.map(([number, knob], at) => makeRow(catalogue.knobs[knob], number, at));
  list.replaceChildren(...rows.map(row => row.item));
  selected = [];
  missing = [];
  for (const row of rows) showEffect(row, row.knob.arg ? {refused: ""} : {});
}

// ---- the result

function commandLine(judged) {
  if (!selected.length) return "";
  const words = ["hwknobs", ...(platOption.checked ? [`--plat=${platform.name}`] : []),
                 platform.named ? "setname" : "set"];
  selected.forEach((row, i) => words.push(row.name, ...(judged[i].word === undefined ? [] : [judged[i].word])));
  return words.map(quoted).join(" ");
}

function conflicts() {
  const bySetting = new Map();
  for (const row of selected)
    for (const set of row.knob.sets) bySetting.set(set, [...(bySetting.get(set) ?? []), row]);
  return [...bySetting].filter(([, others]) => others.length > 1).map(([set, others]) =>
    ["hint", `${others.map(row => row.name).join(" and ")} are alternatives, as they set ${settingName(set)}: ` +
             `the last on the line wins, ${others.at(-1).name}`]);
}

function findNotes(judged, plenv) {
  const found = missing.map(name => ["refused", `${name}: ${platform.name} does not have it, so it was left out`]);
  selected.forEach((row, i) => {
    const {refused, assertion, hints} = judged[i];
    if (assertion)
      found.push(["refused", `${row.name}: ends in an assertion (${refused}), as its argument has two places to go`]);
    else if (refused !== undefined)
      found.push(["refused", `${row.name}: ${row.field.value ? "" : "has no argument yet, "}refused with "${refused}"`]);
    for (const hint of hints) found.push(["hint", `${row.name}: ${hint}`]);
  });
  if (plenv > catalogue.plenv_capacity)
    found.push(["refused", `refused with "plenv settings need ${plenv} bytes, the partition holds ` +
                           `${catalogue.plenv_capacity}"`]);
  found.push(...conflicts());
  if (selected.length && !platform.named)
    found.push(["hint", `${platform.name} has no ids: what is set boots, but cannot be read back, so set -m and -d ` +
                        "and status --partition do not end"]);
  return found.sort(([a], [b]) => (a === "hint") - (b === "hint"));
}

function update() {
  const judged = selected.map(row => judge(row.knob, platform.named ? row.name : "(null)", row.field?.value ?? ""));
  const settings = [];
  selected.forEach((row, i) => {
    showEffect(row, judged[i]);
    row.field?.setAttribute("aria-invalid", judged[i].refused !== undefined);
    if (row.knob.key && judged[i].refused === undefined)
      settings.push([row.knob.key, render(row.knob.value, judged[i].shown)]);
  });
  const plenv = plenvSize(settings);
  line.value = commandLine(judged);
  block.textContent = `${selected.length} ticked, bootloader block ${plenv} of ${catalogue.plenv_capacity} bytes`;
  const found = findNotes(judged, plenv);
  if (String(found) !== notes.dataset.shown)  // or a screen reader would read them out at every key
    notes.replaceChildren(...found.map(([kind, text]) => element("li", {className: kind}, text)));
  notes.dataset.shown = String(found);
  saveState();
}

function tick(row, on) {
  row.tick.checked = on;
  if (!on) {
    selected = selected.filter(other => other !== row);
    row.field?.removeAttribute("aria-invalid");
    showEffect(row, row.knob.arg ? {refused: ""} : {});
  } else if (!selected.includes(row)) {
    selected.push(row);
  }
  update();
}

// Ticks those that `wanted` asks for, with their arguments; each is a function of a row, an argument and a name.
function tickAll(wanted) {
  for (const {isIt, argument, name} of wanted) {
    const row = rows.find(isIt);
    if (!row) missing.push(name);
    else if (!selected.includes(row)) selected.push(row);
    if (row) row.tick.checked = true;
    if (row?.field) row.field.value = argument;
  }
}

// ---- the address

function address() {
  const state = new URLSearchParams({plat: platform.name});
  for (const [key, box] of [["group", groupBox], ["words", wordsBox]]) if (box.value) state.set(key, box.value);
  for (const [key, box] of [["ticked", tickedBox], ["option", platOption]]) if (box.checked) state.set(key, 1);
  for (const row of selected) state.append("set", row.name + (row.field?.value ? `.${row.field.value}` : ""));
  return `${location.href.replace(/#.*/, "")}#${state}`;
}

// Not at every key: browsers refuse too many changes in a short time.
let saving;
function saveState() {
  clearTimeout(saving);
  saving = setTimeout(() => history.replaceState(null, "", address()), 200);
}

function loadState() {
  const state = new URLSearchParams(location.hash.slice(1));
  choosePlatform(state.get("plat"));
  groupBox.value = state.get("group") ?? "";
  if (groupBox.selectedIndex < 0) groupBox.value = "";
  wordsBox.value = state.get("words") ?? "";
  tickedBox.checked = state.has("ticked");
  platOption.checked = state.has("option");
  tickAll(state.getAll("set").map(text => {
    const [, name, argument = ""] = /^([^.]*)(?:\.([^]*))?$/.exec(text);
    return {isIt: row => row.name === name, argument, name};
  }));
  filter();
  update();
}

function changePlatform() {
  const wanted = selected.map(row => ({argument: row.field?.value, name: row.knob.desc, knob: row.knob}));
  choosePlatform(platformBox.value);
  tickAll(wanted.map(({argument, name, knob}) => {
    const at = rows.find(row => row.knob === knob) ?? rows.find(row => isVariant(row.knob, knob));
    return {isIt: row => row === at, argument, name};
  }));
  filter();
  update();
}

// Where the clipboard is closed to pages, the line is at least ready to be copied by hand.
async function copy(button, text) {
  const label = button.textContent;
  try {
    await navigator.clipboard.writeText(text);
    button.textContent = "Copied";
    setTimeout(() => { button.textContent = label; }, 1500);
  } catch {
    line.value = text;
    line.select();
    document.execCommand("copy");
  }
}

platformBox.append(...catalogue.platforms.map(({name}) => element("option", {value: name}, name)));
groupBox.append(element("option", {value: ""}, "all"), ...[...new Set(catalogue.knobs.map(knob => knob.group ?? "none"))]
  .sort().map(group => element("option", {value: group}, group)));
platformBox.onchange = changePlatform;
groupBox.onchange = wordsBox.oninput = tickedBox.onchange = () => { filter(); saveState(); };
platOption.onchange = update;
document.getElementById("filters").onsubmit = event => event.preventDefault();
document.getElementById("clear").onclick = () => { choosePlatform(platform.name); filter(); update(); };
document.getElementById("copy_line").onclick = event => copy(event.currentTarget, line.value);
document.getElementById("copy_link").onclick = event => copy(event.currentTarget, address());
addEventListener("hashchange", loadState);
loadState();
