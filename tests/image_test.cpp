// Images: how items are merged and removed, and what they generate.
#include "hwknobs_img/image.h"
#include "fatal.h"

namespace {

const hwknobs_config first{.desc = "1", .pl_setting = {"b", ""}, .dt_fragment = "&a { x; };", .name = "first"};
const hwknobs_config second{.desc = "2", .arg_type = 1, .pl_setting = {"b", "%d"}, .name = "second"};
const hwknobs_config third{
    .desc = "3", .arg_type = 1, .pl_setting = {"c"}, .dt_fragment = "&c { y = <%d>; };", .name = "third"};

TEST(Image, UpdatesRemovesAndGenerates) {
    hwknobs_image image{"default", "px0000", {config_item(&first, 1), config_item(&second, 2)}};
    config_item argument(&second, 2);
    argument.arg = 5;
    EXPECT_TRUE(image.item_update(config_item(&third, 3)));
    EXPECT_TRUE(image.item_update(argument));
    EXPECT_THAT(image.items, testing::ElementsAre(testing::Field(&config_item::cfg, &first),
                                                  testing::Field(&config_item::arg, argument.arg),
                                                  testing::Field(&config_item::cfg, &third)));
    EXPECT_EQ(image.generate_dt(), "/dts-v1/;\n/plugin/;\n&a { x; };\n&c { y = <0>; };\n");
    EXPECT_EQ(image.generate_settings(), (plenv_map{{"b", "5"}}));  // of two items with one key the later counts
    for (const char* const other : {"Second", "secon", "second2", ""}) EXPECT_FALSE(image.item_remove(other)) << other;
    EXPECT_TRUE(image.item_remove("second"));
    EXPECT_EQ(image.items[1].cfg, &third);
    EXPECT_EQ(image.generate_settings(), (plenv_map{{"b", ""}}));

    config_item other_kind(&third, 3);
    other_kind.arg_kind = config_arg_kind::string;
    EXPECT_FATAL(image.item_update(other_kind),
                 "Error in file hwknobs/hwknobs_img:786\n"
                 "\tfunction: bool hwknobs_image::item_update(const config_item &)\n\t> pos->arg_copy(in)\n");
}

}  // namespace
