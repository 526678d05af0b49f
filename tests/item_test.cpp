// Templates, arguments and descriptions of items.
#include "fatal.h"
#include "hwknobs_item/config_item.h"

namespace {

using kind = config_arg_kind;
using values = std::list<std::string>;

hwknobs_config entry(const char* value, const char* name = "knob") {
    return {.desc = "x", .arg_type = 1, .pl_setting = {"key", value}, .name = name};
}

TEST(Template, KindValuesAndRendering) {
    struct {
        const char* text;
        kind arg_kind;
        values allowed;
        decltype(config_item::arg) arg;
        const char* rendered;
    } const cases[] = {
        {"", kind::none, {}, 0, ""},
        {"100%%", kind::none, {}, 0, "100%"},
        {"<%d %d>", kind::int32, {}, -5, "<4294967291 4294967291>"},
        {"%d%%", kind::none, {}, 1, "1%"},  // a percent sign makes it forget its kind
        {"%%%d", kind::int32, {}, 1, "%1"},
        {"%u 0x%x", kind::uint32, {}, 0xABCDEF01U, "2882400001 0xabcdef01"},
        {"\"%s \"", kind::string, {}, "a", "\"a\""},  // the byte after a bare %s is swallowed
        {"%s%q", kind::string, {}, "a", "aq"},        // and so makes no conversion
        {"%s[on,off]mv", kind::string, {"on", "off"}, "on", "onmv"},
        {"%s[a]-%s[b,C9]", kind::string, {"a", "b", "C9"}, "b", "b-b"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.text);
        const hwknobs_config config = entry(c.text);
        config_item item(&config, 1);
        EXPECT_EQ(item.arg_kind, c.arg_kind);
        EXPECT_EQ(item.allowed_values, c.allowed);
        item.arg = c.arg;
        EXPECT_EQ(item.format_item(c.text), c.rendered);
    }
}

TEST(Template, Faults) {
    const std::string parse_error = "config knob format string parse error, ";
    const std::pair<const char*, std::string> cases[] = {
        {"%q", "unknown parameter value"},
        {"%5d", "unknown parameter value"},
        {"%d %x", "config knob format string contain multiple in-compatible formatter"},
        {"%s[on,,off]", parse_error + "allowed string value size = 0"},
        {"%s[]", parse_error + "allowed string value size = 0"},
        {"%s[a,b] %s[b]", parse_error + "duplicate entry b"},
        {"%s[on-1]", parse_error + "ill-form string formatter"},
        {"%s[on-", parse_error + "ill-form string formatter"},
        {"%s[on", "config knob format string end unexpectedly(state 3)"},
        {"100%", "config knob format string end unexpectedly(state 1)"},
    };
    for (const auto& [text, message] : cases) {
        const hwknobs_config config = entry(text);
        EXPECT_ERROR(config_item(&config, 1), message);
    }
    const hwknobs_config unnamed = entry("%s[", nullptr);
    EXPECT_ERROR(config_item(&unnamed, 1), "config (null) format string end unexpectedly(state 3)");
    hwknobs_config no_value = entry(nullptr);
    EXPECT_EXIT(config_item(&no_value, 1), testing::ExitedWithCode(1), "");
}

TEST(Item, StringArguments) {
    const hwknobs_config free_text = entry("%s"), listed = entry("%s[on,off]"), number = entry("%u");
    config_item item(&free_text, 1), choice(&listed, 1), unsigned_item(&number, 1);
    for (const std::string& good : values{"", "a_b-c,9", std::string(4095, 'x')}) {
        EXPECT_TRUE(item.arg_set(good.c_str()));
        EXPECT_EQ(std::get<std::string>(item.arg), good);
    }
    for (const std::string& bad : values{"a b", "a.b", "a/b", "\x80", std::string(4096, 'x')})
        EXPECT_FALSE(item.arg_set(bad.c_str())) << bad;
    EXPECT_FALSE(unsigned_item.arg_set("1"));
    EXPECT_TRUE(choice.arg_set("off"));
    EXPECT_ERROR(choice.arg_set("ON"), "config knob not allowed 'ON'");
    EXPECT_ERROR(choice.arg_set(""), "config knob not allowed ''");
    EXPECT_FALSE(choice.arg_copy(unsigned_item));
    EXPECT_TRUE(choice.arg_copy(item));
    EXPECT_EQ(choice.arg, item.arg);
}

TEST(Item, Descriptions) {
    const std::tuple<const char*, decltype(config_item::arg), const char*, const char*> cases[] = {
        {"", 0, "none", "Activate  knob(7) x"},
        {"%d", -3, "int32", "Activate  knob(7)[arg=-3] x"},
        {"%x", 255U, "uint32", "Activate  knob(7)[arg=255] x"},
        {"%s", "a,b", "string", "Activate  knob(7)[str=a,b] x"},
        {"%s", "", "string", "Activate  knob(7)[str=] x"},
    };
    for (const auto& [text, arg, type, desc] : cases) {
        const hwknobs_config config = entry(text);
        config_item item(&config, 7);
        EXPECT_EQ(item.arg_type_get_string(), type);
        item.arg = arg;
        EXPECT_EQ(item.desc(), desc);
    }
    const hwknobs_config unnamed = entry("%u", nullptr);
    EXPECT_THROW(static_cast<void>(config_item(&unnamed, 7).desc()), std::bad_variant_access);
}

}  // namespace
