#include "StandardFixture.h"

#include "support/PropertyLoop.h"
#include "vcl/controls/ComboBox.h"
#include "vcl/controls/Menu.h"
#include "vcl/controls/SpeedButton.h"
#include "vcl/controls/SpinEdit.h"

namespace vcl::tests
{

/// A registered class and the properties of it that do not keep every value they are given.
struct TClassCase {
    const char* Name;
    std::set<std::string> NotFree = {};
    std::set<std::string> NotStreamed = {};
};

static std::ostream& operator<<(std::ostream& Stream, const TClassCase& Case)
{
    return Stream << Case.Name;
}

class TStandardClassTest : public TStandardTest, public ::testing::WithParamInterface<TClassCase>
{
protected:
    static TComponent* Make(TComponent* Owner)
    {
        const TClass* const Class = GetClass(GetParam().Name);
        return Class ? static_cast<TComponent*>(Class->Create(Owner)) : nullptr;
    }
};

TEST_P(TStandardClassTest, EveryPropertyIsSetReadStoredAndRefused)
{
    CheckProperties([] { return std::unique_ptr<TComponent>(Make(nullptr)); },
                    {GetParam().NotFree, GetParam().NotStreamed});
}

/// On a form, which gives colours, fonts and hints, each value a property may have is read as it was written.
TEST_P(TStandardClassTest, EveryValueIsReadFromAFormAsItWasWritten)
{
    const TClass& Class = *GetClass(GetParam().Name);
    for (const TPropertyInfo* const Row : PublishedProperties(Class)) {
        if (!detail::IsPlain(*Row) || !Row->Set || std::string_view(Row->Name) == "Name")
            continue;
        SCOPED_TRACE(Row->Name);
        for (const TPropertyValue& Value : detail::SampleValues(*Row->Type)) {
            const std::unique_ptr<TForm> Written(New<TForm>(nullptr));
            Written->SetColor(clYellow);
            TComponent* const Component = Make(Written.get());
            Component->SetName("Item");
            Component->SetParentComponent(Written.get());
            Row->Set(*Component, Value);
            const std::string Text = detail::TextOf(*Written);
            const std::unique_ptr<TForm> Read(New<TForm>(nullptr));
            detail::ReadText(Text, *Read);
            EXPECT_EQ(detail::TextOf(*Read), Text);
            EXPECT_EQ(Row->Get(*Read->FindComponent("Item")), Row->Get(*Component));
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Standard, TStandardClassTest,
    ::testing::Values(TClassCase{"TPanel", {"TabOrder", "Width", "Height", "BevelWidth", "BorderWidth"}},
                      TClassCase{"TLabel", {"Width", "Height"}},
                      TClassCase{"TButton", {"TabOrder", "Width", "Height"}},
                      TClassCase{"TSpeedButton", {"Width", "Height", "Down", "NumGlyphs"}},
                      TClassCase{"TEdit", {"MaxLength", "TabOrder", "Width", "Height"}},
                      TClassCase{"TCheckBox", {"TabOrder", "Width", "Height"}},
                      TClassCase{"TComboBox", {"MaxLength", "TabOrder", "Width", "Height", "ItemIndex"}},
                      TClassCase{"TSpinEdit", {"MaxLength", "TabOrder", "Width", "Height"}},
                      TClassCase{"TListBox", {"TabOrder", "Width", "Height"}},
                      TClassCase{"TListView", {"TabOrder", "Width", "Height"}},
                      TClassCase{"TStatusBar", {"Width", "Height"}}, TClassCase{"TMainMenu"},
                      TClassCase{"TPopupMenu"}, TClassCase{"TOpenDialog"}, TClassCase{"TSaveDialog"}),
    [](const auto& Info) { return std::string(Info.param.Name); });

class TStandardClassesTest : public TStandardTest
{
};

TEST_F(TStandardClassesTest, EveryPropertyOfAMenuItemIsSetReadStoredAndRefused)
{
    CheckProperties([] { return std::unique_ptr<TComponent>(New<TMenuItem>(nullptr)); });
}

/// Where a new object differs from the declared defaults, form files always name the property.
TEST_F(TStandardClassesTest, NewControlsHaveTheirDeclaredDefaults)
{
    std::vector<std::string> Different;
    for (const char* const Name : {"TForm", "TPanel", "TLabel", "TButton", "TSpeedButton", "TEdit",
                                   "TCheckBox", "TComboBox", "TSpinEdit", "TListBox", "TListView",
                                   "TStatusBar", "TMainMenu", "TPopupMenu", "TMenuItem", "TOpenDialog"}) {
        const TClass& Class = *GetClass(Name);
        const std::unique_ptr<TComponent> Component(static_cast<TComponent*>(Class.Create(nullptr)));
        for (const TPropertyInfo* const Row : PublishedProperties(Class)) {
            const bool IsStored = !Row->IsStored || Row->IsStored(*Component);
            if (Row->Default && IsStored && Row->Get(*Component) != TPropertyValue(*Row->Default))
                Different.push_back(std::string(Name) + "." + Row->Name);
        }
    }
    EXPECT_THAT(Different, IsEmpty());
}

TEST_F(TStandardClassesTest, PropertiesMayStandInAnyOrder)
{
    detail::ReadText("object Form: TForm\n"
                     "  object Combo: TComboBox\n"
                     "    ItemIndex = 1\n"
                     "    Style = csDropDownList\n"
                     "    Items.Strings = (\n      'one'\n      'two')\n"
                     "  end\n"
                     "  object Spin: TSpinEdit\n"
                     "    Value = 700\n"
                     "    MinValue = 100\n"
                     "    MaxValue = 900\n"
                     "  end\n"
                     "  object Left: TSpeedButton\n"
                     "    Down = True\n"
                     "    GroupIndex = 1\n"
                     "  end\n"
                     "  object Right: TSpeedButton\n"
                     "    Down = True\n"
                     "  end\n"
                     "end\n",
                     Form());
    const auto Find = [this](const char* Name) { return Form().FindComponent(Name); };
    EXPECT_EQ(As<TComboBox>(Find("Combo"))->GetItemIndex(), 1);
    EXPECT_EQ(As<TComboBox>(Find("Combo"))->GetText(), "two");
    EXPECT_EQ(As<TSpinEdit>(Find("Spin"))->GetValue(), 700);
    EXPECT_TRUE(As<TSpeedButton>(Find("Left"))->GetDown());
    EXPECT_FALSE(As<TSpeedButton>(Find("Right"))->GetDown()) << "in no group";
}

} // namespace vcl::tests
