#include "ControlFixture.h"

#include "support/PropertyLoop.h"

namespace vcl::tests
{

TEST_F(TControlTest, EveryPropertyOfAControlIsSetReadStoredAndRefused)
{
    // The probe starts with a tab stop although the declared default has none, so that False reads back as
    // True.
    CheckProperties([] { return std::unique_ptr<TComponent>(New<TProbe>(nullptr)); },
                    {.NotFree = {"TabOrder", "Width", "Height"}, .NotStreamed = {"TabStop"}});
}

TEST_F(TControlTest, EveryPropertyOfAFormIsSetReadStoredAndRefused)
{
    CheckProperties([] { return std::unique_ptr<TComponent>(New<TForm>(nullptr)); },
                    {.NotFree = {"PixelsPerInch", "Width", "Height", "ClientWidth", "ClientHeight"},
                     .NotStreamed = {"PixelsPerInch", "Width", "Height"}});
}

TEST_F(TControlTest, EveryControlHasTheRowsOfItsAncestors)
{
    for (const char* const Name :
         {"Name", "Tag", "Left", "Top", "Width", "Height", "Cursor", "Hint", "HelpContext"})
        EXPECT_NE(FindProperty(TCustomControl::StaticClass(), Name), nullptr) << Name;
    for (const char* const Name : {"Align", "Color", "Font", "TabOrder", "OnClick", "OnKeyDown"}) {
        EXPECT_EQ(FindProperty(TCustomControl::StaticClass(), Name), nullptr) << Name;
        EXPECT_NE(FindProperty(TProbe::StaticClass(), Name), nullptr) << Name;
    }
}

TEST_F(TControlTest, DeclaredDefaultsAreThoseTheFormsLeaveOut)
{
    const auto Default = [](const char* Name) { return FindProperty(TProbe::StaticClass(), Name)->Default; };
    EXPECT_EQ(Default("Align"), 0);
    EXPECT_EQ(Default("Anchors"), 3);
    EXPECT_EQ(Default("Color"), static_cast<std::int64_t>(clWindow));
    EXPECT_EQ(Default("DragCursor"), crDrag);
    EXPECT_EQ(Default("Enabled"), 1);
    EXPECT_EQ(Default("ImeMode"), static_cast<std::int64_t>(TImeMode::imDontCare));
    EXPECT_EQ(Default("TabOrder"), -1);
    EXPECT_EQ(Default("TabStop"), 0);
    EXPECT_EQ(Default("Visible"), 1);
    for (const char* const Name : {"Left", "Top", "Width", "Height", "BiDiMode", "Ctl3D", "ShowHint"})
        EXPECT_FALSE(Default(Name)) << Name;
}

} // namespace vcl::tests
