#include "gallery/Options.h"

#include <stdexcept>

#include <gmock/gmock.h>

using gallery::ParseOptions;
using gallery::TOptions;

TEST(GalleryOptions, WithoutArgumentsTheFirstPageIsShown)
{
    const TOptions Options = ParseOptions({});
    EXPECT_EQ(Options.Page, "");
    EXPECT_EQ(Options.State, "");
    EXPECT_EQ(Options.Screenshot, "");
    EXPECT_EQ(Options.Scale, 1.0);
    EXPECT_FALSE(Options.Size || Options.Dark || Options.List || Options.Help);
}

TEST(GalleryOptions, APictureHasPageStateSizeScaleAndColours)
{
    const TOptions Options = ParseOptions({"--screenshot", "a.png", "--page", "TKSTreeView", "--state",
                                           "wide", "--size", "800x600", "--scale", "1.5", "--dark"});
    EXPECT_EQ(Options.Screenshot, "a.png");
    EXPECT_EQ(Options.Page, "TKSTreeView");
    EXPECT_EQ(Options.State, "wide");
    EXPECT_EQ(Options.Size, (vcl::TSize{800, 600}));
    EXPECT_EQ(Options.Scale, 1.5);
    EXPECT_TRUE(Options.Dark);
}

TEST(GalleryOptions, WhatIsUnknownIncompleteOrOutOfRangeIsRefusedByName)
{
    const auto Message = [](const std::vector<std::string>& Arguments) -> std::string {
        try {
            ParseOptions(Arguments);
        } catch (const std::invalid_argument& Error) {
            return Error.what();
        }
        return "accepted";
    };
    EXPECT_EQ(Message({"--bright"}), "unknown option: --bright");
    EXPECT_EQ(Message({"file"}), "unknown option: file");
    EXPECT_EQ(Message({"--page"}), "--page needs a value");
    EXPECT_EQ(Message({"--size", "800"}), "bad value for --size: 800");
    EXPECT_EQ(Message({"--size", "99x600"}), "bad value for --size: 99");
    EXPECT_EQ(Message({"--scale", "5"}), "bad value for --scale: 5");
    EXPECT_EQ(Message({"--scale", "nan"}), "bad value for --scale: nan");
}
