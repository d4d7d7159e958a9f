// The forms of data/model/forms: read, written, converted.

#include <gtest/gtest.h>

#include "FormData.h"
#include "SampleComponents.h"
#include "support/Hex.h"
#include "vcl/streaming/Reader.h"

namespace vcl::tests
{

using nlohmann::json;

namespace
{

class FormFiles : public testing::Test
{
protected:
    static void SetUpTestSuite() { RegisterSampleClasses(); }

    static std::string Data(const std::string& Name) { return ReadTestData("model/forms/" + Name); }
    static std::vector<json> Index(const std::string& Folder)
    {
        return ReadJsonLines("model/forms/" + Folder + "/index.jsonl");
    }
    static json Tree(const std::string& Name) { return WithoutSpellings(json::parse(Data(Name))); }

    /// The form of a case: read into a new form, after its ancestor when it has one.
    static std::unique_ptr<TComponent> Load(const json& Case, const std::string& Path)
    {
        if (!Case["ancestor"].get<bool>())
            return ReadImage(Data(Path + ".bin"));
        auto Form = ReadImage(Data(Path + ".ancestor.bin"));
        ReadImage(Data(Path + ".bin"), Form.get());
        return Form;
    }
};

} // namespace

TEST_F(FormFiles, EveryWrittenImageReadsAsItsTree)
{
    for (const json& Case : Index("written")) {
        const std::string Path = "written/" + Case["name"].get<std::string>();
        SCOPED_TRACE(Path);
        const auto Form = Load(Case, Path);
        EXPECT_EQ(json::diff(Tree(Path + ".json"), DescribeTree(*Form)), json::array());
    }
}

TEST_F(FormFiles, EveryTreeThatWritersAgreeOnIsWrittenByteForByte)
{
    int Count = 0;
    for (const json& Case : Index("written")) {
        if (Case["writer"] != "common")
            continue;
        const std::string Path = "written/" + Case["name"].get<std::string>();
        SCOPED_TRACE(Path);
        ++Count;
        const auto Form = Load(Case, Path);
        const auto Ancestor =
            Case["ancestor"].get<bool>() ? ReadImage(Data(Path + ".ancestor.bin")) : nullptr;
        const std::string Image = WriteImage(*Form, Ancestor.get());
        if (Image != Data(Path + ".bin")) {
            EXPECT_EQ(ImageToText(Image), ImageToText(Data(Path + ".bin")));
            EXPECT_EQ(ToHex(Image), ToHex(Data(Path + ".bin")));
        }
    }
    EXPECT_GE(Count, 80);
}

TEST_F(FormFiles, WhatIsWrittenWhereWritersDifferReadsAsTheSameTree)
{
    for (const json& Case : Index("written")) {
        const std::string Path = "written/" + Case["name"].get<std::string>();
        SCOPED_TRACE(Path);
        const auto Form = Load(Case, Path);
        std::unique_ptr<TComponent> Again;
        if (Case["ancestor"].get<bool>()) {
            const auto Ancestor = ReadImage(Data(Path + ".ancestor.bin"));
            Again = ReadImage(Data(Path + ".ancestor.bin"));
            ReadImage(WriteImage(*Form, Ancestor.get()), Again.get());
        } else
            Again = ReadImage(WriteImage(*Form));
        EXPECT_EQ(json::diff(Tree(Path + ".json"), DescribeTree(*Again)), json::array());
    }
}

TEST_F(FormFiles, EveryLayoutOfAWrittenFormConvertsToItsImage)
{
    for (const json& Case : Index("written")) {
        const std::string Path = "written/" + Case["name"].get<std::string>();
        const std::string Image = Data(Path + ".bin");
        std::vector<std::string> Layouts{Path + ".dfm"};
        for (const json& Layout : Case["alt"])
            Layouts.push_back("written/" + Layout.get<std::string>());
        for (const std::string& Layout : Layouts) {
            SCOPED_TRACE(Layout);
            EXPECT_EQ(ToHex(TextToImage(Data(Layout))), ToHex(Image));
        }
        SCOPED_TRACE(Path);
        EXPECT_EQ(ToHex(TextToImage(ImageToText(Image))), ToHex(Image));
        if (Case["ancestor"].get<bool>()) {
            EXPECT_EQ(TextToImage(Data(Path + ".ancestor.dfm")), Data(Path + ".ancestor.bin"));
        }
    }
}

TEST_F(FormFiles, TextIsWrittenInTheUsualLayout)
{
    // Numbers aside, whose digits differ where fewer of them give the same value.
    for (const char* Name : {"structure-deep", "collection-simple", "string-quotes", "string-long-control",
                             "binary-100", "inherited-same", "inline-two", "sets-and-enums", "wide-latin"}) {
        const std::string Path = std::string("written/") + Name;
        EXPECT_EQ(ImageToText(Data(Path + ".bin")), Data(Path + ".alt1.dfm")) << Name;
    }
}

TEST_F(FormFiles, HandWrittenTextConvertsAndReadsAsItsTree)
{
    for (const json& Case : Index("fromtext")) {
        if (Case["status"] != "common")
            continue;
        const std::string Path = "fromtext/" + Case["name"].get<std::string>();
        SCOPED_TRACE(Path);
        const std::string Image = TextToImage(Data(Path + ".dfm"));
        EXPECT_EQ(ToHex(Image), ToHex(Data(Path + ".bin")));
        EXPECT_EQ(json::diff(Tree(Path + ".json"), DescribeTree(*ReadImage(Image))), json::array());
        EXPECT_EQ(ToHex(TextToImage(ImageToText(Image))), ToHex(TextToImage(Data(Path + ".out.dfm"))));
    }
}

TEST_F(FormFiles, BytesAbove127InQuotesStayAsTheyAre)
{
    for (const char* Name : {"raw-utf8", "raw-utf8-bom"}) {
        const std::string Path = std::string("fromtext/") + Name;
        EXPECT_EQ(ToHex(TextToImage(Data(Path + ".dfm"))), ToHex(Data(Path + ".bin")));
        EXPECT_EQ(TextToImage(ImageToText(Data(Path + ".bin"))), Data(Path + ".bin"));
    }
}

TEST_F(FormFiles, ALetterBehindANumberSelectsItsType)
{
    const std::string Image = TextToImage(Data("fromtext/float-suffix.dfm"));
    EXPECT_EQ(json::diff(Tree("fromtext/float-suffix.json"), DescribeTree(*ReadImage(Image))), json::array());
    EXPECT_EQ(TextToImage(ImageToText(Image)), Image);
}

TEST_F(FormFiles, HandMadeImagesReadAsTheirTreesAndLeaveWhatFollowsUnread)
{
    for (const json& Case : Index("frombinary")) {
        if (Case["status"] != "common")
            continue;
        const std::string Path = "frombinary/" + Case["name"].get<std::string>();
        SCOPED_TRACE(Path);
        TMemoryStream Stream;
        Fill(Stream, Data(Path + ".bin"));
        const std::unique_ptr<TComponent> Form(ReadComponent(Stream));
        EXPECT_EQ(Stream.GetPosition(), Case["position_after"].get<std::int64_t>());
        EXPECT_EQ(json::diff(Tree(Path + ".json"), DescribeTree(*Form)), json::array());
        ASSERT_EQ(Case["to_text"], "ok");
        EXPECT_EQ(ToHex(TextToImage(ImageToText(Data(Path + ".bin")))),
                  ToHex(TextToImage(Data(Path + ".out.dfm"))));
    }
}

TEST_F(FormFiles, CharactersBeyondTheBasicPlaneAreRead)
{
    const auto Form = ReadImage(Data("frombinary/utf8-strings-astral.bin"));
    EXPECT_EQ(json::diff(Tree("frombinary/utf8-strings-astral.json"), DescribeTree(*Form)), json::array());
}

TEST_F(FormFiles, ShortFloatingPointTypesAreRead)
{
    const std::string Image = Data("frombinary/single-currency-date-types.bin");
    const auto Form = ReadImage(Image);
    const auto* const Types = As<TSampleTypes>(Form->FindComponent("T1"));
    ASSERT_TRUE(Types);
    EXPECT_NE(Types->GetASingle(), 0.0F);
    EXPECT_EQ(TextToImage(ImageToText(Image)), Image);
}

TEST_F(FormFiles, NumbersBeyondTheirRangeKeepTheirKind)
{
    const std::string Image = TextToImage("object Form1: TForm1\r\n"
                                          "  A = -1.0E39s\r\n"
                                          "  B = 1.0E400d\r\n"
                                          "  C = 1.0E5000\r\n"
                                          "end\r\n");
    EXPECT_EQ(ImageToText(Image), "object Form1: TForm1\r\n"
                                  "  A = -1.0E9999s\r\n"
                                  "  B = 1.0E9999d\r\n"
                                  "  C = 1.0E9999\r\n"
                                  "end\r\n");
    EXPECT_EQ(TextToImage(ImageToText(Image)), Image);
}

TEST_F(FormFiles, ResourcesAreReadAndWrittenWithTheirHeaders)
{
    for (const json& Case : Index("resource")) {
        const std::string Path = "resource/" + Case["name"].get<std::string>();
        SCOPED_TRACE(Path);
        TMemoryStream Text;
        TMemoryStream Resource;
        Fill(Text, Data(Path + ".dfm"));
        ObjectTextToResource(Text, Resource);
        EXPECT_EQ(ToHex(Content(Resource)), ToHex(Data(Path + ".res")));
        EXPECT_EQ(ToHex(Content(Resource).substr(0, Case["header_hex"].get<std::string>().size() / 2)),
                  Case["header_hex"].get<std::string>());

        Resource.SetPosition(0);
        TMemoryStream Back;
        ObjectResourceToText(Resource, Back);
        EXPECT_EQ(TextToImage(Content(Back)), TextToImage(Data(Path + ".dfm")));
        EXPECT_EQ(Resource.Remaining(), 0);

        Resource.SetPosition(0);
        const std::unique_ptr<TComponent> Form(ReadForm(Resource, nullptr));
        const std::string TreeName = Case["tree"].get<std::string>().substr(3);
        EXPECT_EQ(json::diff(Tree(TreeName), DescribeTree(*Form)), json::array());
    }
}

} // namespace vcl::tests
