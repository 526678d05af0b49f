"use strict";
// What the tool makes of the words on its command line: the same checks, in its own words.

// A number as strtol() reads it in base 0: null without digits; what follows the digits is ignored.
function readNumber(text) {
  const found = /^[ \t\n\v\f\r]*([+-]?)(0x[0-9a-f]+|0[0-7]*|[1-9][0-9]*)/i.exec(text);
  if (!found) return null;
  const [, sign, digits] = found;
  const size = BigInt(/^0[0-7]+$/.test(digits) ? "0o" + digits : digits);
  return {size, value: sign === "-" ? -size : size};
}

function judgeSigned(text) {
  const number = readNumber(text);
  if (!number) return {refused: `not a number ${text}`};
  if (number.value !== BigInt.asIntN(32, number.value)) return {refused: `config number out of range ${text}`};
  return {value: number.value, shown: BigInt.asUintN(32, number.value)};
}

function judgeUnsigned(text) {
  const number = readNumber(text);
  if (!number) return {refused: `not a number ${text}`};
  const value = BigInt.asUintN(64, number.value);
  if (number.size >> 64n || value >> 32n) return {refused: `config number out of range (uint32) ${text}`};
  return {value, shown: value};
}

function judgeString(knob, name, text) {
  if (text.length >= 4096 || !/^[A-Za-z0-9,_-]*$/.test(text))
    return {refused: `Invalid argument '${text}' or argument type mismatch(expect string)`};
  if (knob.allowed.length && !knob.allowed.includes(text))
    return {refused: `config ${name} not allowed '${text}'`};
  return {value: text, shown: text};
}

// What is accepted, and yet may surprise.
function hintsFor(knob, text, value) {
  const hints = [];
  if (knob.arg === "string") {
    if (knob.allowed.length) return hints;
    if (text === "") hints.push("no argument given: an empty one is stored");
    if (/[^A-Za-z_-]/.test(text)) hints.push("reads back as empty with set -m: name it again then");
    if (text.includes("--")) hints.push("an XML file with -- in it cannot be imported");
    if (text.length > 3900) hints.push("a text this long may not be read back at all");
    return hints;
  }
  if (String(value) !== text) hints.push(`is read as ${value}`);
  if (value < 0n) hints.push(`is stored as ${BigInt.asUintN(32, value)}, and reads back as 0 with set -m`);
  const range = /\((-?\w+)(?:-| to )(-?\w+)[,)]/.exec(knob.desc)?.slice(1).map(readNumber);
  if (range?.every(Boolean) && (value < range[0].value || value > range[1].value))
    hints.push("is outside the range that the description gives; the tool takes it all the same");
  return hints;
}

const argumentLetter = {int32: "a", uint32: "u", string: "s"};

// With `text` as the argument of the knob that the tool calls `name`: the argument word, and either the tool's message
// in `refused`, or `shown`, what stands in the templates, with the hints.
function judge(knob, name, text) {
  if (!knob.arg) return {hints: []};
  if (knob.arg === "refused")
    return {refused: "check_string == NULL", assertion: true, hints: []};
  const judged = knob.arg === "int32" ? judgeSigned(text)
    : knob.arg === "uint32" ? judgeUnsigned(text) : judgeString(knob, name, text);
  return {word: argumentLetter[knob.arg] + text,
          hints: judged.refused === undefined ? hintsFor(knob, text, judged.value) : [], ...judged};
}

// The byte after a bare %s is dropped, as the tool does.
function render(template, shown) {
  return template.replace(/%(?:s(?:\[[^\]]*\]|[^])?|[^])/g, conversion =>
    conversion === "%%" ? "%" : conversion === "%x" ? shown.toString(16) : String(shown));
}

// The later of two settings of one key wins, and only that takes room: key, "=", value and a zero byte.
function plenvSize(settings) {
  let size = 0;
  for (const [key, value] of new Map(settings)) size += key.length + value.length + 2;
  return size;
}

function quoted(word) {
  return /^[\w,.=+-]+$/.test(word) ? word : `'${word.replaceAll("'", "'\\''")}'`;
}
