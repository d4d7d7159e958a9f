#include "StandardFixture.h"

#include "vcl/controls/SpeedButton.h"
#include "vcl/graphics/Canvas.h"

namespace vcl::tests
{

class TSpeedButtonTest : public TStandardTest
{
protected:
    TSpeedButton& AddToGroup(int Group)
    {
        TSpeedButton& Button = Add<TSpeedButton>();
        Button.SetGroupIndex(Group);
        return Button;
    }
    static bool ShowsDown(TSpeedButton& Button)
    {
        return WindowOf(Button).GetButton()->GetCheckState() == TCheckState::Checked;
    }
    /// Pictures of one colour each, side by side, with a white last row.
    static void Paint(TBitmap& Bitmap, std::initializer_list<TColor> Colors)
    {
        constexpr int Size = 8;
        Bitmap.SetSize(Size * static_cast<int>(Colors.size()), Size);
        int Left = 0;
        for (const TColor Color : Colors) {
            Bitmap.GetCanvas()->GetBrush()->SetColor(Color);
            Bitmap.GetCanvas()->FillRect({Left, 0, Left + Size, Size - 1});
            Left += Size;
        }
    }
    static std::uint32_t FirstPixel(const TGlyph& Glyph) { return *Glyph.Buffer().Pixels; }
};

TEST_F(TSpeedButtonTest, OneOfAGroupIsDownAndStaysDown)
{
    TSpeedButton& Left = AddToGroup(1);
    TSpeedButton& Right = AddToGroup(1);
    TSpeedButton& Other = AddToGroup(2);
    Other.SetDown(true);
    ShowForm();
    Click(Left);
    EXPECT_TRUE(Left.GetDown());
    Click(Right);
    EXPECT_FALSE(Left.GetDown());
    EXPECT_FALSE(ShowsDown(Left));
    EXPECT_TRUE(ShowsDown(Right));
    Click(Right);
    EXPECT_TRUE(Right.GetDown());
    EXPECT_TRUE(ShowsDown(Right));
    EXPECT_TRUE(Other.GetDown());
}

TEST_F(TSpeedButtonTest, AllowAllUpHoldsForTheWholeGroup)
{
    TSpeedButton& Left = AddToGroup(1);
    TSpeedButton& Right = AddToGroup(1);
    Left.SetAllowAllUp(true);
    EXPECT_TRUE(Right.GetAllowAllUp());
    ShowForm();
    Click(Right);
    Click(Right);
    EXPECT_FALSE(Right.GetDown());
    EXPECT_FALSE(ShowsDown(Right));
}

TEST_F(TSpeedButtonTest, WithoutAGroupNothingIsDown)
{
    TSpeedButton& Button = Add<TSpeedButton>();
    Button.SetDown(true);
    EXPECT_FALSE(Button.GetDown());
    Button.SetGroupIndex(3);
    Button.SetDown(true);
    EXPECT_TRUE(Button.GetDown());
    Button.SetGroupIndex(0);
    EXPECT_FALSE(Button.GetDown());
}

TEST_F(TSpeedButtonTest, AButtonThatJoinsAGroupDownRaisesTheOther)
{
    TSpeedButton& Left = AddToGroup(1);
    TSpeedButton& Right = AddToGroup(2);
    Left.SetDown(true);
    Right.SetDown(true);
    Right.SetGroupIndex(1);
    EXPECT_FALSE(Left.GetDown());
    EXPECT_TRUE(Right.GetDown());
}

TEST_F(TSpeedButtonTest, AClickDoesNotTakeTheFocusAndTheNameIsNoCaption)
{
    TSpeedButton& Button = Add<TSpeedButton>();
    Button.SetName("Button");
    Button.OnClick = Noting("click");
    ShowForm();
    Click(Button);
    EXPECT_THAT(TakeNotes(), ElementsAre("click"));
    EXPECT_FALSE(Button.Focused());
    EXPECT_EQ(Button.GetCaption(), "");
}

TEST_F(TSpeedButtonTest, AHandlerMayFreeTheButton)
{
    TSpeedButton& Button = AddToGroup(1);
    Button.SetCaption("&Go");
    Button.OnClick = [&](TObject*) { delete &Button; };
    ShowForm();
    Windows().KeyPress('G', MK_ALT);
    EXPECT_EQ(Form().GetControlCount(), 0);
}

TEST_F(TSpeedButtonTest, ThePictureReachesTheWindowWithItsShareOfTheBitmap)
{
    TSpeedButton& Button = Add<TSpeedButton>();
    TBitmap Bitmap;
    Paint(Bitmap, {clRed, clGray});
    Button.SetGlyph(&Bitmap);
    EXPECT_EQ(Button.GetNumGlyphs(), 2);
    ShowForm();
    EXPECT_EQ(WindowOf(Button).GetButton()->GetGlyphSize(), (TSize{8, 8}));
    Button.SetNumGlyphs(1);
    EXPECT_EQ(WindowOf(Button).GetButton()->GetGlyphSize(), (TSize{16, 8}));
    Button.GetGlyph()->Clear();
    EXPECT_EQ(WindowOf(Button).GetButton()->GetGlyphSize(), (TSize{0, 0}));
}

TEST_F(TSpeedButtonTest, GlyphsAreTransparentWhereTheBottomLeftColourIs)
{
    TBitmap Bitmap;
    Paint(Bitmap, {clRed, clBlue});
    const TGlyph Up(Bitmap, 2);
    const TGlyph Disabled(Bitmap, 2, 1);
    EXPECT_EQ(FirstPixel(Up), 0xFFFF0000u);
    EXPECT_EQ(FirstPixel(Disabled), 0xFF0000FFu);
    EXPECT_EQ(Up.Buffer().Pixels[7 * 8], 0u);
    EXPECT_TRUE(TGlyph(Bitmap, 2, 2).IsEmpty());
    EXPECT_TRUE(TGlyph(TBitmap(), 1).IsEmpty());
}

TEST_F(TSpeedButtonTest, PicturesOfAListKeepTheirMask)
{
    TImageList& List = *New<TImageList>(&Form());
    TBitmap Bitmap;
    Bitmap.SetSize(16, 16);
    Bitmap.GetCanvas()->GetBrush()->SetColor(clBlack);
    Bitmap.GetCanvas()->FillRect({0, 0, 16, 8});
    List.AddMasked(&Bitmap, clWhite);
    const TGlyph Glyph(&List, 0);
    EXPECT_EQ(FirstPixel(Glyph), 0xFF000000u);
    EXPECT_EQ(Glyph.Buffer().Pixels[15 * 16], 0u);
    EXPECT_TRUE(TGlyph(&List, 1).IsEmpty());
    EXPECT_TRUE(TGlyph(nullptr, 0).IsEmpty());
}

} // namespace vcl::tests
