#include <gtest/gtest.h>

#include "SampleComponents.h"

namespace vcl::tests
{

namespace
{

class TBaseShape : public TComponent
{
    VCL_CLASS
public:
    using TComponent::TComponent;
    SAMPLE_VALUE(int, Depth, 0)
    SAMPLE_VALUE(int, Hidden, 0)
};

const TClass& TBaseShape::StaticClass()
{
    using T = TBaseShape;
    static const TClass Class = DefineClass<T, TComponent>(
        "TBaseShape", {
                          Published<&T::GetDepth, &T::SetDepth>("Depth").Default(1),
                          Declared(Published<&T::GetHidden, &T::SetHidden>("Hidden").Default(2)),
                      });
    return Class;
}

class TShownShape : public TBaseShape
{
    VCL_CLASS
public:
    using TBaseShape::TBaseShape;
    SAMPLE_VALUE(bool, Own, false)
};

const TClass& TShownShape::StaticClass()
{
    using T = TShownShape;
    static const TClass Class =
        DefineClass<T, TBaseShape>("TShownShape", {
                                                      Published<&T::GetOwn, &T::SetOwn>("Own"),
                                                      Publish("Hidden").Default(5),
                                                      Publish("Depth").NoDefault(),
                                                  });
    return Class;
}

std::string Names(const TClass& Class)
{
    std::string Result;
    for (const TPropertyInfo* Row : PublishedProperties(Class))
        Result += std::string(Row->Name) + " ";
    return Result;
}

} // namespace

TEST(Properties, AncestorsRowsComeFirstAndARepublishedRowKeepsItsPlace)
{
    EXPECT_EQ(Names(TBaseShape::StaticClass()), "Name Tag Depth ");
    EXPECT_EQ(Names(TShownShape::StaticClass()), "Name Tag Depth Own Hidden ");
}

TEST(Properties, ADeclaredRowIsFoundOnlyWhereItIsPublished)
{
    EXPECT_EQ(FindProperty(TBaseShape::StaticClass(), "Hidden"), nullptr);
    const TPropertyInfo* const Row = FindProperty(TShownShape::StaticClass(), "hidden");
    ASSERT_TRUE(Row);
    EXPECT_EQ(Row->Default, 5);
    EXPECT_EQ(FindProperty(TShownShape::StaticClass(), "Depth")->Default, std::nullopt);
    EXPECT_EQ(FindProperty(TBaseShape::StaticClass(), "Depth")->Default, 1);
}

TEST(Properties, PublishingAnUnknownRowIsAnError)
{
    EXPECT_THROW(Publish("Nothing").Resolve(&TBaseShape::StaticClass()), EPropertyError);
}

TEST(Properties, MethodsAreFoundInTheClassAndItsAncestors)
{
    EXPECT_TRUE(FindMethod(TSampleForm::StaticClass(), "formcreate"));
    EXPECT_FALSE(FindMethod(TSampleControl::StaticClass(), "FormCreate"));
}

TEST(Properties, TypesDescribeThemselves)
{
    const TTypeInfo& Colors = TypeTraits<TColor>::Info();
    EXPECT_EQ(Colors.IdentifierValue("CLWINDOW"), clWindow);
    EXPECT_STREQ(Colors.IdentifierName(clInfoBk), "clInfoBk");
    EXPECT_EQ(Colors.IdentifierName(0x123456), nullptr);
    EXPECT_STREQ(TypeTraits<TCursor>::Info().IdentifierName(crHandPoint), "crHandPoint");
    EXPECT_TRUE(TypeTraits<bool>::Info().IsBoolean());
    EXPECT_FALSE(TypeTraits<TSampleAlign>::Info().IsBoolean());
    EXPECT_EQ(TypeTraits<TSampleAlign>::Info().OrdinalOf("SATOP"), 1);
    EXPECT_EQ(FindProperty(TSampleControl::StaticClass(), "Font")->Type->DisplayName(), "TSampleFont");
}

TEST(Properties, AClassMayPublishAReferenceToItself)
{
    EXPECT_EQ(FindProperty(TSampleControl::StaticClass(), "Buddy")->Type->DisplayName(), "TSampleControl");
}

TEST(Properties, InitialValuesAreThoseOfTheTableOfClasses)
{
    TSampleDefaults Fresh(nullptr);
    for (const TPropertyInfo* Row : PublishedProperties(Fresh.ClassType()))
        if (Row->Default && !std::holds_alternative<AnsiString>(Row->Get(Fresh))) {
            EXPECT_EQ(Row->Get(Fresh), TPropertyValue(*Row->Default)) << Row->Name;
        }
}

} // namespace vcl::tests
