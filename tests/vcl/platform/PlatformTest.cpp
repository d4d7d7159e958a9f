#include "vcl/platform/Platform.h"

#include <gtest/gtest.h>

#include "vcl/platform/ImageCodec.h"
#include "vcl/platform/System.h"
#include "vcl/platform/TextEngine.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

class TOtherPlatform : public IPlatform
{
public:
    ITextEngine& Text() override { throw EInvalidOperation("no text"); }
    ISystem& System() override { return FSystem; }
    IImageCodec& Images() override { throw EInvalidOperation("no images"); }
    IWindowSystem& Windows() override { throw EInvalidOperation("no windows"); }

private:
    TClassicSystem FSystem;
};

AnsiString MessageOf(const std::function<void()>& Action)
{
    try {
        Action();
    } catch (const Exception& Error) {
        return AnsiString(Error.ClassName()) + ": " + Error.GetMessage();
    }
    return "nothing was raised";
}

} // namespace

TEST(Platform, WithoutOneTextIsMeasuredInCellsAndColoursAreTheClassicOnes)
{
    TFontSpec Font;
    Font.Height = -15;
    EXPECT_EQ(Platform().Text().TextWidth(Font, "abc"), 27);
    EXPECT_EQ(Platform().System().SystemColor(SystemColorIndex(clBtnFace)), TColor(0xC0C0C0));
    EXPECT_EQ(Platform().System().Metric(TSystemMetric::VScrollBarWidth), 16);
}

TEST(Platform, WithoutOneWindowsAndPicturesAreRefusedWithAReason)
{
    EXPECT_EQ(MessageOf([] { Platform().Windows(); }),
              "EInvalidOperation: Windows cannot be opened: no platform with a window system is installed");
    EXPECT_EQ(MessageOf([] { Platform().Images().Decode({}); }),
              "EInvalidGraphic: Unknown picture format: only BMP files can be read on this platform");
    EXPECT_EQ(MessageOf([] { Platform().Images().Encode({}, "png"); }),
              "EInvalidGraphicOperation: Cannot write pictures of format \"png\" on this platform");
}

TEST(Platform, TheInstalledPlatformIsCurrentUntilItIsReplaced)
{
    IPlatform& Headless = Platform();
    TOtherPlatform Other;
    IPlatform* const Previous = SetPlatform(&Other);
    EXPECT_EQ(&Platform(), &Other);
    EXPECT_EQ(SetPlatform(Previous), &Other);
    EXPECT_EQ(&Platform(), &Headless);
}

} // namespace vcl::tests
