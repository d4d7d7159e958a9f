// Fonts, pens, brushes and colours.

#include <gtest/gtest.h>

#include "vcl/graphics/Brush.h"
#include "vcl/graphics/Colors.h"
#include "vcl/graphics/Font.h"
#include "vcl/graphics/Pen.h"
#include "vcl/system/Exception.h"

namespace vcl::tests
{

namespace
{

std::vector<std::string> NamesOf(const TClass& Class)
{
    std::vector<std::string> Names;
    for (const TPropertyInfo* Row : PublishedProperties(Class))
        Names.push_back(Row->Name);
    return Names;
}

/// The value's name in form files.
std::string NameOf(const TPersistent& Object, const char* Property)
{
    const TPropertyInfo* const Row = FindProperty(Object.ClassType(), Property);
    const std::int64_t Value = std::get<std::int64_t>(Row->Get(Object));
    if (Row->Type->Kind == TTypeKind::Enumeration)
        return Row->Type->ValueNames[static_cast<std::size_t>(Value)];
    const char* const Identifier = Row->Type->IdentifierName(Value);
    return Identifier ? Identifier : std::to_string(Value);
}

/// Counts the notifications of an object.
template <class T>
int ChangesDuring(T& Object, const std::function<void()>& Action)
{
    int Count = 0;
    Object.OnChange = [&](TObject*) { ++Count; };
    Action();
    Object.OnChange = nullptr;
    return Count;
}

} // namespace

TEST(Font, ANewFontIsThePlatformsDefaultInTheWindowTextColour)
{
    const TFont Font;
    EXPECT_EQ(Font.GetName(), "Arial");
    EXPECT_EQ(Font.GetHeight(), -11);
    EXPECT_EQ(Font.GetColor(), clWindowText);
    EXPECT_EQ(NameOf(Font, "Charset"), "DEFAULT_CHARSET");
    EXPECT_EQ(NameOf(Font, "Color"), "clWindowText");
    EXPECT_EQ(NameOf(Font, "Pitch"), "fpDefault");
    EXPECT_TRUE(Font.GetStyle().IsEmpty());
}

TEST(Font, FormFilesListItsPropertiesByNameAndNeverStoreItsSize)
{
    EXPECT_EQ(NamesOf(TFont::StaticClass()),
              (std::vector<std::string>{"Charset", "Color", "Height", "Name", "Pitch", "Size", "Style"}));
    const TFont Font;
    EXPECT_FALSE(FindProperty(TFont::StaticClass(), "Size")->IsStored(Font));
    for (const char* Name : {"Charset", "Color", "Height", "Style"})
        EXPECT_FALSE(FindProperty(TFont::StaticClass(), Name)->Default.has_value()) << Name;
}

TEST(Font, SizeIsHeightInPointsWithItsSignReversed)
{
    TFont Font;
    EXPECT_EQ(Font.GetSize(), 8);
    Font.SetSize(10);
    EXPECT_EQ(Font.GetHeight(), -13);
    Font.SetHeight(-16);
    EXPECT_EQ(Font.GetSize(), 12);
    Font.SetHeight(16);
    EXPECT_EQ(Font.GetSize(), -12);
    Font.SetPixelsPerInch(72);
    Font.SetSize(9);
    EXPECT_EQ(Font.GetHeight(), -9);
    Font.SetPixelsPerInch(0);
    EXPECT_EQ(Font.GetPixelsPerInch(), 72);
}

TEST(Font, AnotherFontOfOtherResolutionIsAssignedInPoints)
{
    TFont Source, Target;
    Source.SetPixelsPerInch(144);
    Source.SetHeight(-24);
    Source.SetStyle({TFontStyle::fsBold, TFontStyle::fsStrikeOut});
    Source.SetName("Courier New");
    Target.Assign(&Source);
    EXPECT_EQ(Target.GetSize(), 12);
    EXPECT_EQ(Target.GetHeight(), -16);
    EXPECT_EQ(Target.GetPixelsPerInch(), 96);
    EXPECT_EQ(Target.GetStyle(), Source.GetStyle());
    EXPECT_TRUE(Target.GetSpec().Bold && Target.GetSpec().StrikeOut && !Target.GetSpec().Italic);
}

TEST(Font, OnlyRealChangesAreToldOf)
{
    TFont Font, Same;
    EXPECT_EQ(ChangesDuring(Font, [&] { Font.SetHeight(-11); }), 0);
    EXPECT_EQ(ChangesDuring(Font, [&] { Font.SetName(""); }), 0);
    EXPECT_EQ(ChangesDuring(Font, [&] { Font.Assign(&Same); }), 0);
    EXPECT_EQ(ChangesDuring(Font, [&] { Font.SetStyle({TFontStyle::fsItalic}); }), 1);
    EXPECT_EQ(ChangesDuring(Font, [&] { Font.Assign(&Same); }), 1);
    EXPECT_TRUE(Font.IsEqual(Same));
}

TEST(Font, AssigningSomethingElseIsRefused)
{
    TFont Font;
    const TPen Pen;
    EXPECT_THROW(Font.Assign(&Pen), EConvertError);
}

TEST(Pen, ANewPenIsSolidBlackAndOnePixelWideAsDeclared)
{
    const TPen Pen;
    EXPECT_EQ(Pen.GetState(), (TPenState{TPenStyle::psSolid, 1, 0x000000}));
    for (const TPropertyInfo* Row : PublishedProperties(TPen::StaticClass()))
        EXPECT_EQ(std::get<std::int64_t>(Row->Get(Pen)), Row->Default) << Row->Name;
    EXPECT_EQ(NamesOf(TPen::StaticClass()), (std::vector<std::string>{"Color", "Mode", "Style", "Width"}));
}

TEST(Pen, EveryModeIsNamedInFormFilesByItsOwnName)
{
    const std::pair<TPenMode, const char*> Modes[] = {
        {TPenMode::pmBlack, "pmBlack"},
        {TPenMode::pmNotMerge, "pmNotMerge"},
        {TPenMode::pmMaskNotPen, "pmMaskNotPen"},
        {TPenMode::pmNotCopy, "pmNotCopy"},
        {TPenMode::pmMaskPenNot, "pmMaskPenNot"},
        {TPenMode::pmNot, "pmNot"},
        {TPenMode::pmXor, "pmXor"},
        {TPenMode::pmNotMask, "pmNotMask"},
        {TPenMode::pmMask, "pmMask"},
        {TPenMode::pmNotXor, "pmNotXor"},
        {TPenMode::pmNop, "pmNop"},
        {TPenMode::pmMergeNotPen, "pmMergeNotPen"},
        {TPenMode::pmCopy, "pmCopy"},
        {TPenMode::pmMergePenNot, "pmMergePenNot"},
        {TPenMode::pmMerge, "pmMerge"},
        {TPenMode::pmWhite, "pmWhite"},
    };
    const TPropertyInfo* const Row = FindProperty(TPen::StaticClass(), "Mode");
    for (const auto& [Mode, Name] : Modes) {
        TPen Pen;
        Pen.SetMode(Mode);
        EXPECT_EQ(NameOf(Pen, "Mode"), Name);
        TPen Copy;
        Row->Set(Copy, Row->Get(Pen));
        EXPECT_EQ(Copy.GetMode(), Mode) << Name;
    }
}

TEST(Pen, NegativeWidthsAreIgnoredAndColoursAreResolved)
{
    TPen Pen;
    Pen.SetWidth(-1);
    EXPECT_EQ(Pen.GetWidth(), 1);
    Pen.SetColor(clHighlight);
    EXPECT_EQ(Pen.GetState().Color, 0x000080u);
}

TEST(Brush, ANewBrushIsSolidAndWhiteAsDeclared)
{
    const TBrush Brush;
    EXPECT_EQ(Brush.GetState().Style, TBrushStyle::bsSolid);
    EXPECT_EQ(Brush.GetState().Color, 0xFFFFFFu);
    for (const TPropertyInfo* Row : PublishedProperties(TBrush::StaticClass()))
        EXPECT_EQ(std::get<std::int64_t>(Row->Get(Brush)), Row->Default) << Row->Name;
}

TEST(Brush, AColourMakesAClearBrushSolid)
{
    TBrush Brush;
    Brush.SetStyle(TBrushStyle::bsClear);
    Brush.SetColor(clWhite);
    EXPECT_EQ(Brush.GetStyle(), TBrushStyle::bsSolid);
    Brush.SetStyle(TBrushStyle::bsCross);
    Brush.SetColor(clRed);
    EXPECT_EQ(Brush.GetStyle(), TBrushStyle::bsCross);
    Brush.SetStyle(TBrushStyle::bsPattern);
    EXPECT_EQ(Brush.GetStyle(), TBrushStyle::bsCross);
}

TEST(Colors, SystemColoursComeFromThePlatformAndOthersStay)
{
    EXPECT_EQ(ColorToRGB(clInfoBk), TColor(0xE1FFFF));
    EXPECT_EQ(ColorToRGB(clRed), clRed);
    EXPECT_EQ(ColorToPixel(clRed), 0xFF0000u);
    EXPECT_EQ(ColorToPixel(clInfoBk), 0xFFFFE1u);
    EXPECT_EQ(PixelToColor(0xFF123456), TColor(0x563412));
    EXPECT_EQ(ColorToRGB(clNone), clWhite);
    EXPECT_EQ(ColorToRGB(clDefault), clBlack);
}

TEST(Colors, NamesAndNumbersConvertBothWays)
{
    int Count = 0;
    GetColorValues([&](const char* Ident, TColor Color) {
        ++Count;
        EXPECT_EQ(StringToColor(Ident), Color);
        EXPECT_EQ(StringToColor(ColorToString(Color)), Color);
    });
    EXPECT_GE(Count, 43);
    EXPECT_EQ(ColorToString(clBtnFace), "clBtnFace");
    EXPECT_EQ(ColorToString(TColor(0x123456)), "$00123456");
    EXPECT_EQ(StringToColor("$00123456"), TColor(0x123456));
    EXPECT_EQ(StringToColor("CLRED"), clRed);
    EXPECT_EQ(StringToColor("255"), clRed);
    for (const char* Text : {"", "$", "clNothing", "12x", "$1FFFFFFFF"})
        EXPECT_THROW(StringToColor(Text), EConvertError) << Text;
}

} // namespace vcl::tests
