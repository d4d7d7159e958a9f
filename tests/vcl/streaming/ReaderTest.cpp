#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "FormData.h"
#include "SampleComponents.h"
#include "support/TemporaryFolder.h"
#include "vcl/streaming/Reader.h"
#include "vcl/streaming/Writer.h"

namespace vcl::tests
{

using testing::HasSubstr;

namespace
{

class Reader : public testing::Test
{
protected:
    static void SetUpTestSuite() { RegisterSampleClasses(); }

    static std::unique_ptr<TSampleForm> FromText(const std::string& Text)
    {
        return std::unique_ptr<TSampleForm>(
            static_cast<TSampleForm*>(ReadImage(TextToImage(Text)).release()));
    }
    template <class T>
    static T& Part(TComponent& Form, const char* Name)
    {
        T* const Found = As<T>(Form.FindComponent(Name));
        if (!Found)
            throw std::runtime_error(std::string("No component ") + Name);
        return *Found;
    }
};

std::string Repeated(const std::string& Text, int Count)
{
    std::string Result;
    for (int Index = 0; Index < Count; ++Index)
        Result += Text;
    return Result;
}

/// Writes down when it is told that the form is loaded; may destroy another component then.
class TLoadedTeller : public TSampleControl
{
    VCL_CLASS
public:
    using TSampleControl::TSampleControl;
    static AnsiString Order;
    static bool Destroys;

protected:
    void Loaded() override
    {
        TSampleControl::Loaded();
        Order += GetName() + (GetBuddy() ? ">" + GetBuddy()->GetName() : "") + " ";
        if (Destroys)
            delete GetOwnerComponent()->FindComponent("Victim");
    }
};

AnsiString TLoadedTeller::Order;
bool TLoadedTeller::Destroys = false;

const TClass& TLoadedTeller::StaticClass()
{
    static const TClass Class = DefineClass<TLoadedTeller, TSampleControl>("TLoadedTeller");
    return Class;
}

} // namespace

TEST_F(Reader, BindsHandlersThatThenRun)
{
    const auto Form = FromText("object F: TSampleForm\n"
                               "  object A: TSampleControl\n"
                               "    OnClick = okclick\n"
                               "    OnKey = EditKey\n"
                               "  end\n"
                               "end\n");
    auto& Control = Part<TSampleControl>(*Form, "A");
    Control.OnClick(&Control);
    Control.OnKey(&Control, 'x');
    EXPECT_EQ(Form->Calls, "OkClick EditKey x ");
    EXPECT_EQ(Control.OnClick.GetHandlerName(), "OkClick");
}

TEST_F(Reader, RefusesAHandlerWithOtherParameters)
{
    EXPECT_THROW(FromText("object F: TSampleForm\n  OnClick = EditKey\nend\n"), EReadError);
}

TEST_F(Reader, TellsComponentsInFileOrderOnceReferencesAreThere)
{
    RegisterClass(TLoadedTeller::StaticClass());
    TLoadedTeller::Order.clear();
    FromText("object F: TSampleForm\n"
             "  object A: TLoadedTeller\n    Buddy = C\n    object B: TLoadedTeller\n    end\n  end\n"
             "  object C: TLoadedTeller\n  end\n"
             "end\n");
    EXPECT_EQ(TLoadedTeller::Order, "A>C B C ");
}

TEST_F(Reader, SurvivesThatLoadedDestroysAComponentStillToBeTold)
{
    RegisterClass(TLoadedTeller::StaticClass());
    TLoadedTeller::Destroys = true;
    const auto Form = FromText("object F: TSampleForm\n"
                               "  object A: TLoadedTeller\n  end\n"
                               "  object Victim: TSampleControl\n  end\n"
                               "end\n");
    TLoadedTeller::Destroys = false;
    EXPECT_EQ(Form->FindComponent("Victim"), nullptr);
    EXPECT_EQ(Form->GetControls().size(), 1u);
}

TEST_F(Reader, LeavesNobodyLoadingOrReading)
{
    const auto Form = FromText("object F: TSampleForm\n  object A: TSampleControl\n  end\nend\n");
    const auto& Control = Part<TSampleControl>(*Form, "A");
    EXPECT_EQ(Control.GetLoadedCount(), 1);
    for (const TComponent* Component :
         {static_cast<const TComponent*>(Form.get()), static_cast<const TComponent*>(&Control)}) {
        EXPECT_FALSE(Component->Is(TComponentState::csLoading));
        EXPECT_FALSE(Component->Is(TComponentState::csReading));
    }
}

TEST_F(Reader, KeepsInAGivenRootWhatWasReadBeforeAFailure)
{
    TSampleForm Form(nullptr);
    const std::string Image =
        TextToImage("object F: TSampleForm\n  Left = 5\n"
                    "  object A: TSampleControl\n    Left = 6\n    Wrong = 1\n  end\nend\n");
    EXPECT_THROW(ReadImage(Image, &Form), EReadError);
    EXPECT_EQ(Form.GetLeft(), 5);
    EXPECT_EQ(Part<TSampleControl>(Form, "A").GetLeft(), 6);
    EXPECT_FALSE(Form.Is(TComponentState::csLoading));
}

TEST_F(Reader, GoesOnBehindErrorsThatAreAccepted)
{
    TMemoryStream Stream;
    Fill(Stream, TextToImage("object F: TSampleForm\n  Wrong = (1 [a] 'b')\n  Left = 5\n"
                             "  object X: TNobody\n    object Y: TNobody\n    end\n  end\n"
                             "  object A: TSampleControl\n    Font.Wrong = 2\n    Top = 7\n  end\n"
                             "  object a: TSampleControl\n    Top = 8\n  end\nend\n"));
    TReader Tolerant(Stream);
    std::vector<std::string> Errors;
    Tolerant.OnError = [&](TReader&, const Exception& Error, bool& Handled) {
        Errors.push_back(Error.what());
        Handled = true;
    };
    const std::unique_ptr<TComponent> Form(Tolerant.ReadRootComponent());
    EXPECT_THAT(Errors, testing::ElementsAre(HasSubstr("F.Wrong"), HasSubstr("TNobody"),
                                             HasSubstr("A.Font.Wrong"), HasSubstr("\"a\" already exists")));
    EXPECT_EQ(As<TSampleForm>(Form.get())->GetLeft(), 5);
    EXPECT_EQ(Part<TSampleControl>(*Form, "A").GetTop(), 7);
    EXPECT_EQ(Form->GetComponentCount(), 2);
}

TEST_F(Reader, DoesNotOfferDamageForAcceptance)
{
    TMemoryStream Stream;
    Fill(Stream, TextToImage("object F: TSampleForm\n  Caption = 'a long text'\nend\n").substr(0, 35));
    TReader Tolerant(Stream);
    int Asked = 0;
    Tolerant.OnError = [&](TReader&, const Exception&, bool& Handled) {
        ++Asked;
        Handled = true;
    };
    EXPECT_THROW(Tolerant.ReadRootComponent(), EReadError);
    EXPECT_EQ(Asked, 0);
}

TEST_F(Reader, RefusesAReferenceToAComponentOfAnotherClass)
{
    EXPECT_THROW(FromText("object F: TSampleForm\n  Buddy = T\n  object T: TSampleTimer\n  end\nend\n"),
                 EReadError);
}

TEST_F(Reader, TheLastOfSeveralReferencesWinsAlsoWhenItIsNil)
{
    const std::string Rest = "  object B: TSampleControl\n  end\nend\n";
    EXPECT_EQ(FromText("object F: TSampleForm\n  Buddy = B\n  Buddy = nil\n" + Rest)->GetBuddy(), nullptr);
    EXPECT_NE(FromText("object F: TSampleForm\n  Buddy = nil\n  Buddy = B\n" + Rest)->GetBuddy(), nullptr);
}

TEST_F(Reader, ForgetsReferencesOfItemsThatALaterCollectionReplaces)
{
    const auto Form = FromText("object F: TSampleForm\n"
                               "  object G: TSampleGrid\n"
                               "    Columns = <item Control = F SubItems = <item Control = F end> end>\n"
                               "    Columns = <item Control = G end>\n"
                               "  end\nend\n");
    auto& Grid = Part<TSampleGrid>(*Form, "G");
    ASSERT_EQ(Grid.GetColumns()->GetCount(), 1);
    EXPECT_EQ(static_cast<TSampleItem*>(Grid.GetColumns()->GetItem(0))->GetControl(), &Grid);
}

TEST_F(Reader, FindsComponentsOfAFrameByPathAndTheFormFromInsideIt)
{
    const auto Form = FromText("object F: TSampleForm\n"
                               "  Buddy = Frame1.Edit1\n"
                               "  inline Frame1: TSampleFrame\n"
                               "    inherited Edit1: TSampleMemo\n      Buddy = Label1\n    end\n"
                               "    inherited Label1: TSampleControl\n      Buddy = F.A\n    end\n"
                               "  end\n"
                               "  object A: TSampleControl\n  end\n"
                               "end\n");
    auto& Frame = Part<TSampleFrame>(*Form, "Frame1");
    EXPECT_EQ(Form->GetBuddy(), Frame.FindComponent("Edit1"));
    EXPECT_EQ(Part<TSampleControl>(Frame, "Edit1").GetBuddy(), Frame.FindComponent("Label1"));
    EXPECT_EQ(Part<TSampleControl>(Frame, "Label1").GetBuddy(), Form->FindComponent("A"));
    // What is written has the same references again.
    const auto Again = ReadImage(WriteImage(*Form));
    EXPECT_EQ(DescribeTree(*Again), DescribeTree(*Form));
}

TEST_F(Reader, TellsWhichReferencesNamedNothing)
{
    TMemoryStream Stream;
    Fill(Stream, TextToImage("object F: TSampleForm\n  Buddy = Other.Thing\nend\n"));
    TReader Asking(Stream);
    const std::unique_ptr<TComponent> Form(Asking.ReadRootComponent());
    ASSERT_EQ(Asking.GetUnresolved().size(), 1u);
    EXPECT_EQ(Asking.GetUnresolved()[0].Name, "Other.Thing");
    EXPECT_EQ(Asking.GetUnresolved()[0].Property, "F.Buddy");
}

TEST_F(Reader, RefusesNestingBeyondItsLimitInEveryForm)
{
    const int Deep = 100000;
    const std::string Objects = Repeated("object TSampleControl ", Deep) + Repeated("end ", Deep);
    const std::string Lists =
        "object F: TSampleForm\n X = " + Repeated("(", Deep) + Repeated(")", Deep) + " end";
    const std::string Items = "object F: TSampleForm\n X = " + Repeated("<item X = ", Deep) + "1" +
                              Repeated(" end>", Deep) + " end";
    for (const std::string& Text : {Objects, Lists, Items})
        EXPECT_THROW(TextToImage(Text), EParserError);
    const std::string Head = TextToImage("object F: TSampleForm end");
    const std::string Start = Head.substr(0, Head.size() - 2);
    const std::string DeepLists = Start + "\x01X" + std::string(Deep, '\x01') + std::string(Deep + 2, '\0');
    const std::string DeepObjects = Start + '\0' + Repeated(std::string("\x0ETSampleControl\0\0", 17), Deep) +
                                    std::string(Deep + 2, '\0');
    for (const std::string& Image : {DeepLists, DeepObjects}) {
        EXPECT_THROW(ImageToText(Image), EReadError);
        EXPECT_THROW(ReadImage(Image), EReadError);
    }
}

TEST_F(Reader, ReadsAFileInAnyFormatAndNamesItInErrors)
{
    const TTemporaryFolder Folder;
    const std::string Text = "object F: TSampleForm\n  Left = 3\nend\n";
    TMemoryStream Stream;
    for (const std::string& Content :
         {Text, TextToImage(Text), std::string("object F: TSampleForm\n  Left = ?\nend\n")}) {
        Stream.Clear();
        Fill(Stream, Content);
        Stream.SaveToFile(Folder.File("form.dfm"));
        TSampleForm Form(nullptr);
        if (Content.find('?') == std::string::npos) {
            ReadFormFile(Folder.File("form.dfm"), &Form);
            EXPECT_EQ(Form.GetLeft(), 3);
            continue;
        }
        try {
            ReadFormFile(Folder.File("form.dfm"), &Form);
            ADD_FAILURE() << "no error";
        } catch (const EParserError& Error) {
            EXPECT_THAT(Error.what(), HasSubstr("form.dfm"));
            EXPECT_THAT(Error.what(), HasSubstr("line 2, column 10"));
        }
    }
}

TEST_F(Reader, TellsFormatsApartByTheirFirstBytes)
{
    const auto Format = [](std::string_view Bytes) {
        TMemoryStream Stream;
        Fill(Stream, Bytes);
        return TestStreamFormat(Stream);
    };
    EXPECT_EQ(Format("TPF0\x01"), TStreamOriginalFormat::sofBinary);
    EXPECT_EQ(Format("\xFF\x0A"), TStreamOriginalFormat::sofResource);
    EXPECT_EQ(Format("\xEF\xBB\xBF\r\n  Inherited X"), TStreamOriginalFormat::sofText);
    EXPECT_EQ(Format(""), TStreamOriginalFormat::sofUnknown);
    EXPECT_EQ(Format("TPF1"), TStreamOriginalFormat::sofUnknown);
}

TEST_F(Reader, DropsAResourceHeaderThatLies)
{
    TMemoryStream Stream;
    WriteResourceHeader(Stream, "TForm", 1000);
    Stream.SetPosition(0);
    EXPECT_THROW(ReadResourceHeader(Stream), EInvalidImage);
}

TEST_F(Reader, ConvertsWideStringsToTheCodePage)
{
    const auto Form = FromText("object F: TSampleForm\n  Caption = 'caf'#233\n  Hint = #$20AC\nend\n");
    EXPECT_EQ(Form->GetCaption(), "caf\xC3\xA9");
    EXPECT_EQ(Form->GetHint(), "\xE2\x82\xAC");
}

TEST_F(Reader, TakesHexadecimalColoursAsTheirBits)
{
    const auto Form = FromText("object F: TSampleForm\n  Color = $80000005\nend\n");
    EXPECT_EQ(static_cast<std::int32_t>(Form->GetColor()), -2147483643);
}

} // namespace vcl::tests
