#include <gmock/gmock.h>

#include "examples/gallery/Specimen.h"
#include "gallery/inspector/Inspector.h"

using gallery::TInspector;
using gallery::TInspectorRow;
using gallery::TRowEditor;
using testing::ElementsAre;

namespace
{

class Inspector : public testing::Test
{
protected:
    Inspector() : Owner(nullptr), Object(&Owner)
    {
        Object.SetName("Object");
        Tool.SetObject(&Object);
    }

    std::vector<vcl::AnsiString> Paths() const
    {
        std::vector<vcl::AnsiString> Result;
        for (const TInspectorRow& Row : Tool.Rows())
            Result.push_back(Row.Path);
        return Result;
    }

    TInspectorRow Row(const vcl::AnsiString& Path) const
    {
        for (const TInspectorRow& Candidate : Tool.Rows())
            if (Candidate.Path == Path)
                return Candidate;
        ADD_FAILURE() << "no row " << Path;
        return {};
    }

    vcl::TComponent Owner;
    TSpecimen Object;
    TInspector Tool;
};

} // namespace

TEST_F(Inspector, RowsStandInTheOrderOfTheirNamesWithEventsLast)
{
    EXPECT_THAT(Paths(), ElementsAre("Amount", "Color", "Day", "Fixed", "Friend", "Name", "Part", "Shade",
                                     "Shades", "Tag", "OnChange"));
}

TEST_F(Inspector, WithoutAnObjectThereAreNoRows)
{
    Tool.SetObject(nullptr);
    EXPECT_THAT(Paths(), ElementsAre());
    EXPECT_THROW(Tool.GetText("Amount"), vcl::EPropertyError);
}

TEST_F(Inspector, TheEditorFollowsTheKindOfTheProperty)
{
    EXPECT_EQ(Row("Amount").Editor, TRowEditor::Text);
    EXPECT_EQ(Row("Color").Editor, TRowEditor::Text);
    EXPECT_EQ(Row("Shades").Editor, TRowEditor::Text);
    EXPECT_EQ(Row("Shade").Editor, TRowEditor::Choice);
    EXPECT_EQ(Row("Friend").Editor, TRowEditor::Choice);
    EXPECT_EQ(Row("Fixed").Editor, TRowEditor::ReadOnly);
    EXPECT_EQ(Row("Part").Editor, TRowEditor::ReadOnly);
    EXPECT_EQ(Row("OnChange").Editor, TRowEditor::ReadOnly);
}

TEST_F(Inspector, AnOpenSubObjectShowsItsPropertiesAsDottedRowsBelowIt)
{
    EXPECT_TRUE(Row("Part").IsExpandable);
    EXPECT_EQ(Row("Part").Text, "(TPart)");
    Tool.Toggle("Part");
    EXPECT_TRUE(Row("Part").IsExpanded);
    EXPECT_EQ(Row("Part.Size").Text, "3");
    EXPECT_EQ(Row("Part.Size").Depth, 1);
    Tool.SetText("part.size", "8");
    EXPECT_EQ(Object.GetPart()->GetSize(), 8);
    Tool.Toggle("Part");
    EXPECT_THAT(Paths(), testing::Not(testing::Contains("Part.Size")));
}

TEST_F(Inspector, WhatIsWrittenIsSetAtOnce)
{
    Tool.SetText("Amount", "12");
    Tool.SetText("Shade", "shDark");
    Tool.SetText("Shades", "[shMiddle]");
    Tool.SetText("Color", "clNavy");
    EXPECT_EQ(Object.GetAmount(), 12);
    EXPECT_EQ(Object.GetShade(), TShade::shDark);
    EXPECT_EQ(Object.GetShades(), TShades{TShade::shMiddle});
    EXPECT_EQ(Object.GetColor(), vcl::clNavy);
    EXPECT_EQ(Row("Amount").Text, "12");
}

TEST_F(Inspector, WrongInputAndASetterThatRefusesLeaveTheValue)
{
    EXPECT_THROW(Tool.SetText("Amount", "many"), vcl::EPropertyError);
    EXPECT_THROW(Tool.SetText("Amount", "-1"), vcl::Exception);
    EXPECT_THROW(Tool.SetText("Shades", "shDark"), vcl::EPropertyError);
    EXPECT_EQ(Object.GetAmount(), 5);
    EXPECT_EQ(Object.GetShades(), (TShades{TShade::shLight, TShade::shDark}));
}

TEST_F(Inspector, WhatIsReadOnlyOrUnknownIsRefused)
{
    for (const char* const Path : {"Fixed", "Part", "OnChange", "Nothing", "Part.Nothing", "Amount.Size", ""})
        EXPECT_THROW(Tool.SetText(Path, "1"), vcl::EPropertyError) << Path;
}

TEST_F(Inspector, AnEnumerationOffersItsValues)
{
    EXPECT_THAT(Tool.Choices("Shade"), ElementsAre("shLight", "shMiddle", "shDark"));
    EXPECT_THAT(Tool.Choices("Amount"), ElementsAre());
}

TEST_F(Inspector, AReferenceOffersTheNamedComponentsOfItsClassBesideTheObject)
{
    TSpecimen Other(&Owner);
    Other.SetName("Other");
    vcl::TComponent Stranger(&Owner);
    Stranger.SetName("Stranger");
    EXPECT_THAT(Tool.Choices("Friend"), ElementsAre("", "Other"));
    Tool.SetText("Friend", "other");
    EXPECT_EQ(Object.GetFriend(), &Other);
    EXPECT_EQ(Row("Friend").Text, "Other");
    EXPECT_THROW(Tool.SetText("Friend", "Stranger"), vcl::EPropertyError);
    EXPECT_EQ(Object.GetFriend(), &Other);
    Tool.SetText("Friend", "");
    EXPECT_EQ(Object.GetFriend(), nullptr);
}

TEST_F(Inspector, AnEventShowsTheNameOfItsHandler)
{
    EXPECT_EQ(Row("OnChange").Text, "");
    Object.OnChange = [](vcl::TObject*) {};
    EXPECT_EQ(Row("OnChange").Text, "(set by the program)");
    Object.OnChange.SetHandlerName("ObjectChange");
    EXPECT_EQ(Row("OnChange").Text, "ObjectChange");
}
