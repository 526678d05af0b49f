"""What the page says is what the tool does: seen in a browser, and run on a virtual device."""
import contextlib
import pathlib
import re
import subprocess
import tempfile
import time
import unittest
import urllib.parse

from selenium import webdriver
from selenium.webdriver.common.by import By
from selenium.webdriver.common.keys import Keys
from selenium.webdriver.support.ui import Select

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGE = ROOT / "build/release/page"
URL = (PAGE / "catalogue.html").as_uri()

SIGNED = ["", "5", "-0X1f", "010", "08", "0x", "+3", " 7", "12abc", "it's", "$HOME", "2147483647", "2147483648",
          "-2147483648", "-2147483649", "99999999999999999999"]
UNSIGNED = ["", "0x10", "-0", "-1", "4294967295", "4294967296", "99999999999999999999", "-18446744073709551615",
            "-18446744073709551616"]
STRINGS = ["", "a_b-c,9", "a b", "a.b", "\u00e9", "x" * 4095, "x" * 4096]


def run(*command):
    """Standard output; the exit status is told by what is printed."""
    return subprocess.run(command, check=False, stdout=subprocess.PIPE, text=True, timeout=60).stdout


class Page(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        clean_up = contextlib.ExitStack()
        cls.addClassCleanup(clean_up.close)
        folder = clean_up.enter_context(tempfile.TemporaryDirectory(ignore_cleanup_errors=True))
        cls.device = folder + "/device"
        subprocess.run([ROOT / "device/device", "create", cls.device, "--plat-code", "8314"], check=True)
        options = webdriver.ChromeOptions()
        for argument in ("headless", "window-size=1280,900", "no-sandbox", "disable-dev-shm-usage", "disable-gpu",
                         "disable-quic", "no-first-run", "disable-sync", "disable-background-networking",
                         "disable-component-update", f"user-data-dir={folder}/user"):
            options.add_argument("--" + argument)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL"})
        cls.browser = webdriver.Chrome(service=webdriver.chrome.service.Service("/usr/bin/chromedriver"), options=options)
        clean_up.callback(cls.browser.quit)
        cls.browser.get(URL)
        cls.catalogue = cls.browser.execute_script("return catalogue")

    def tearDown(self):
        self.assertEqual(self.browser.get_log("browser"), [])
        self.assertEqual(self.browser.execute_script("return performance.getEntriesByType('resource').length"), 0)

    # ---- the page

    def open(self, plat, *selected, **state):
        """Opens it afresh; what is selected are names or numbers, or pairs with an argument."""
        words = [f"{item[0]}.{item[1]}" if isinstance(item, tuple) else item for item in selected]
        self.browser.get("about:blank")
        self.browser.get(URL + "#" + urllib.parse.urlencode({"plat": plat, "set": words, **state}, doseq=True))

    def find(self, selector):
        return self.browser.find_element(By.CSS_SELECTOR, selector)

    def texts(self, selector):
        return self.browser.execute_script(
            "return [...document.querySelectorAll(arguments[0])].filter(e => e.checkVisibility()).map(e => e.innerText)",
            selector)

    def line(self):
        return self.find("#line").get_property("value")

    def row(self, desc):
        return self.find("#knobs").find_element(By.XPATH, f"./li[div/label[.='{desc}']]")

    def knobs(self, plat):
        rows = next(p["rows"] for p in self.catalogue["platforms"] if p["name"] == plat)
        return [(number, self.catalogue["knobs"][knob]) for number, knob in rows]

    # ---- the device

    def on_device(self, line):
        return run(ROOT / "device/device", "run", self.device, "sh", "-c", line)

    def listed(self, plat, *group):
        return [row for row in self.on_device(f"hwknobs --plat={plat} list {' '.join(group)}").splitlines()
                if re.match(r" *\d+ ", row)]

    # ---- the tests

    def test_filters(self):
        self.open("px8314")
        for group in Select(self.find("#group")).options[1:]:
            group.click()
            known = [] if group.text == "none" else self.listed("px8314", "--group=" + group.text)
            self.assertEqual(len(self.texts("#knobs > li")), len(known), group.text)
        Select(self.find("#group")).select_by_value("")
        self.find("#words").send_keys("RANDOMIZE kernel")
        self.assertEqual(self.texts("#knobs > li > div > label"),
                         ["Disable Linux kernel randomize-base", "Enable Linux kernel randomize-base"])
        self.find("#words").send_keys(" no such words")
        self.assertEqual(self.texts("#count"), [f"0 of {len(self.listed('px8314'))}"])

    def test_select_by_keyboard_copy_run_and_send(self):
        self.open("px8314", words="lcm")
        self.row("switch lcm settings").find_element(By.CSS_SELECTOR, "input").send_keys(Keys.SPACE)
        webdriver.ActionChains(self.browser).send_keys(Keys.TAB, "2").perform()
        words = self.find("#words")
        words.clear()
        words.send_keys("perf stat events")
        self.row("Set Boot Perf Stat Events").find_element(By.CSS_SELECTOR, ".argument input").send_keys("cycles")
        self.find("#copy_line").click()
        words.clear()
        words.send_keys(Keys.CONTROL, "v")
        line = words.get_property("value")
        self.assertEqual(line, "hwknobs setname lcm_settings a2 perf_stat_events scycles")
        self.assertEqual(self.on_device(line).splitlines()[-1], "config set ok")
        stored = self.on_device("hwknobs status --partition")
        self.assertRegex(stored, r"lcm_settings\(\d+\)\[arg=2\][^$]*perf_stat_events\(\d+\)\[str=cycles\]")

        self.find("#plat_option").click()
        words.clear()
        words.send_keys("perf")
        time.sleep(0.5)  # the address follows within a fifth of a second
        link = self.browser.current_url
        self.browser.get("about:blank")
        self.browser.get(link)
        self.assertEqual(self.line(), line.replace(" ", " --plat=px8314 ", 1))
        self.assertEqual(self.find("#words").get_property("value"), "perf")
        self.find("#ticked").click()
        self.assertEqual(self.texts("#knobs > li > div > label"), ["Set Boot Perf Stat Events"])
        self.find("#clear").click()
        self.assertEqual(self.line(), "")

    def check_verdict(self, plat, *selected):
        """The page's verdict on a selection is the tool's, and so is what it would set."""
        self.open(plat, *selected, ticked=1)
        line = self.line().replace("hwknobs ", f"hwknobs --plat={plat} ", 1)
        refused = self.texts("#notes .refused")
        first = "".join(refused[:1])
        printed = self.on_device(line)
        with self.subTest(line=line[:200], refused=refused, printed=printed[:300]):
            if printed.startswith("Error in file"):
                self.assertIn(printed.splitlines()[-1].removeprefix("\t> "), first)
            elif "ERROR: " in printed:
                self.assertIn(f'refused with "{printed.rpartition("ERROR: ")[2].strip()}', first)
            else:
                self.assertEqual((refused, printed.splitlines()[-1]), ([], "config set ok"))
                if " setname " not in line:
                    return refused
                document = self.on_device(line.replace("setname", "xmlconfig-show"))
                source = document[document.index("/plugin/;\n") + 10:document.index("]]>")]
                self.assertEqual("".join(text + "\n" for text in self.texts("#knobs .overlay")), source)
                self.assertEqual(dict(text.split("=") for text in self.texts("#knobs .plenv")),
                                 dict(re.findall('<item key="(.*)" value="(.*)"/>', document)))
        return refused

    def test_verdicts_are_those_of_the_tool(self):
        knobs = [knob for _, knob in self.knobs("px8314")]
        for conversion, texts in (("%d", SIGNED), ("%x", UNSIGNED), ("%u", ["7"]), ("%s", STRINGS)):
            knob = next((k for k in knobs if conversion in k.get("fragment", "") and not k.get("allowed")), None)
            for text in texts if knob else []:
                self.check_verdict("px8314", (knob["name"], text))
        self.check_verdict("px8314", "kaslr_disable", ("perf_stat_events", "cycles"))
        choice = next(knob for knob in knobs if knob.get("allowed"))
        for text in ("", choice["allowed"][-1]):
            self.check_verdict("px8314", (choice["name"], text))
        number, old = next((number, knob) for number, knob in self.knobs("px1104") if knob.get("allowed"))
        self.check_verdict("px1104", (number, ""))
        self.check_verdict("px1104", (number, old["allowed"][0]))
        self.assertTrue(self.check_verdict("px0000", 1, (4, 5)))

    def test_all_knobs_of_a_platform_at_once(self):
        for plat in self.catalogue["platforms"]:
            self.check_verdict(plat["name"], *[(knob["name"] if plat["named"] else number, (knob.get("allowed") or "1")[0])
                                               for number, knob in self.knobs(plat["name"])])

    def test_bootloader_block(self):
        room = self.catalogue["plenv_capacity"] - len("perf_event") - 2
        for length in (room, room + 1):
            refused = self.check_verdict("px8314", "kaslr_disable", ("perf_stat_events", "x" * length))
            self.assertEqual(len(refused), length - room)
        self.open("px0000", 5, 6)
        self.assertIn("bootloader block 15 of", self.texts("#block")[0])  # test_level=mid: the later of the two alone

    def test_alternatives_and_other_platforms(self):
        self.open("px8314", "kaslr_enable", "kaslr_disable")
        self.assertEqual(self.texts("#notes .hint"), [
            "kaslr_enable and kaslr_disable are alternatives, as they set &chosen kaslr-status: the last on the line wins, "
            "kaslr_disable"])
        row = self.row("Disable Linux kernel randomize-base")
        row.find_element(By.CSS_SELECTOR, "summary").click()
        lists = re.findall(r"px\d{4} \(\d+\)", row.find_element(By.XPATH, ".//p[starts-with(., 'The same')]").text)
        known = []
        for plat in self.catalogue["platforms"]:
            found = [re.match(" *([0-9]+)", text)[1] for text in self.listed(plat["name"])
                     if "Disable Linux kernel randomize-base" in text]
            known += [f"{plat['name']} ({number})" for number in found if plat["name"] != "px8314"]
        self.assertEqual(lists, known)
        self.assertTrue(known)
        self.find("#words").send_keys("disable")
        row.find_element(By.XPATH, ".//button[.='kaslr_enable']").click()
        self.assertEqual(self.browser.switch_to.active_element.accessible_name, "Enable Linux kernel randomize-base")

    def test_platform_change_keeps_the_selection(self):
        only_here = next(k for _, k in self.knobs("px8314") if k not in [k for _, k in self.knobs("px1104")]
                         and k["desc"] not in str(self.knobs("px1104")) and not k.get("arg"))
        self.open("px8314", "kmemleak_disable", ("lcm_settings", 3), only_here["name"])
        Select(self.find("#platform")).select_by_value("px1104")
        self.find("#plat_option").click()
        self.assertEqual([text.partition(":")[0] for text in self.texts("#notes .refused")], [only_here["desc"]])
        printed = self.on_device(self.line())
        self.assertRegex(printed, r"\(platform px1104\), #item=2\n.*\) Disable Kmemleak\n.*\[arg=3\] switch lcm settings\n")

    def test_everyone_can_use_it(self):
        contrast = """
            const light = color => color.match(/[\\d.]+/g).slice(0, 3).map(v => v / 255)
                .map(v => v <= 0.04045 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4)
                .reduce((sum, v, i) => sum + v * [0.2126, 0.7152, 0.0722][i], 0.05);
            const paper = e => { for (; e; e = e.parentElement) {
                const color = getComputedStyle(e).backgroundColor;
                if (!/, 0\\)$/.test(color)) return light(color); } };
            return [...document.querySelectorAll("body *")].filter(e => e.checkVisibility() && e.innerText).map(e => {
                const a = light(getComputedStyle(e).color), b = paper(e);
                return [Math.max(a, b) / Math.min(a, b), e.outerHTML.slice(0, 80)]; }).filter(([ratio]) => ratio < 4.5)"""
        for scheme in ("light", "dark"):
            self.browser.execute_cdp_cmd("Emulation.setEmulatedMedia",
                                         {"features": [{"name": "prefers-color-scheme", "value": scheme}]})
            self.open("px8314", ("lcm_settings", -5), "no_such_knob", "kaslr_enable", "kaslr_disable", group="DISPLAY")
            self.find("#knobs > li:not([hidden]) summary").click()
            self.assertEqual(self.browser.execute_script(contrast), [], scheme)
        self.open("px8314", ("lcm_settings", -5), group="DISPLAY")
        for control in self.browser.find_elements(By.CSS_SELECTOR, "input, select, textarea, button, summary"):
            if control.is_displayed():
                self.assertTrue(control.accessible_name, control.get_attribute("outerHTML"))
        self.browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride",
                                     {"width": 320, "height": 640, "deviceScaleFactor": 1, "mobile": True})
        self.addCleanup(self.browser.execute_cdp_cmd, "Emulation.clearDeviceMetricsOverride", {})
        self.open("px8314", ("lcm_settings", -5), "no_such_knob")
        self.assertLessEqual(self.browser.execute_script("return document.documentElement.scrollWidth"), 320)

    def test_labels_are_those_that_the_compiler_misses(self):
        sections = re.split(r"^## ", (PAGE / "labels.md").read_text(encoding="ascii"), flags=re.M)[1:]
        told = {section[:6]: re.findall(r"^\| `(\w+)`", section, flags=re.M) for section in sections}
        self.assertEqual(list(told), [plat["name"] for plat in self.catalogue["platforms"]])
        for plat, labels in told.items():
            source = "/dts-v1/; /plugin/;\n" + "\n".join(
                re.sub(r"%(s\[(\w+).*?\]|s.|\w)", r"1\2", knob.get("fragment", "")) for _, knob in self.knobs(plat))
            blob = pathlib.Path(self.device, "data/all.dtbo")
            subprocess.run(["dtc", "-q", "-@", "-o", blob], input=source, text=True, check=True)
            self.assertEqual(sorted(run("fdtget", "-p", blob, "/__fixups__").split()), sorted(labels), plat)


if __name__ == "__main__":
    unittest.main()
