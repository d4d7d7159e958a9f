#include <nlohmann/json.hpp>

#include "tools/KsformFixture.h"

namespace vcl::tests
{

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

TEST_F(Ksform, ConvertsTextToItsImageAndBack)
{
    Put("form.dfm", Data("written/generated-10.alt1.dfm"));
    EXPECT_EQ(Run("convert form.dfm form.bin").Status, 0);
    EXPECT_EQ(Get("form.bin"), Data("written/generated-10.bin"));
    EXPECT_EQ(Run("convert form.bin back.dfm").Status, 0);
    EXPECT_EQ(Run("convert back.dfm again.bin").Status, 0);
    EXPECT_EQ(Get("again.bin"), Data("written/generated-10.bin"));
}

TEST_F(Ksform, ConvertsResourcesInBothDirections)
{
    Put("form.dfm", Data("resource/strings-lines.dfm"));
    EXPECT_EQ(Run("convert --resource form.dfm form.res").Status, 0);
    EXPECT_EQ(Get("form.res"), Data("resource/strings-lines.res"));
    EXPECT_EQ(Run("convert form.res back.dfm").Status, 0);
    EXPECT_EQ(Run("convert back.dfm form.bin").Status, 0);
    EXPECT_EQ(Run("convert form.bin again.res --resource").Status, 0);
    EXPECT_EQ(Get("again.res"), Data("resource/strings-lines.res"));
}

TEST_F(Ksform, AFileMayBeConvertedOntoItself)
{
    Put("form", Data("written/float-date.bin"));
    EXPECT_EQ(Run("convert form form").Status, 0);
    EXPECT_THAT(Get("form"), StartsWith("object Form1"));
}

TEST_F(Ksform, AnErrorGivesOneLineAndLeavesTheOutputAsItWas)
{
    Put("bad.dfm", "object Form1: TForm\n  Left = ?\n  Top = ?\nend\n");
    Put("old.bin", "old");
    TOutcome Outcome = Run("convert bad.dfm old.bin");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_THAT(Lines(Outcome.Errors), ElementsAre(StartsWith("ksform: bad.dfm:2:10: ")));
    EXPECT_EQ(Outcome.Output, "");
    EXPECT_EQ(Get("old.bin"), "old");
    Outcome = Run("convert bad.dfm new.bin");
    EXPECT_FALSE(Exists("new.bin"));
    EXPECT_EQ(FileCount(), 4);
}

TEST_F(Ksform, ACutImageIsRefusedWithItsOffset)
{
    Put("cut.bin", Data("written/inline-two.bin").substr(0, 100));
    const TOutcome Outcome = Run("convert cut.bin out.dfm");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_THAT(Lines(Outcome.Errors), ElementsAre(StartsWith("ksform: cut.bin:100: ")));
    EXPECT_FALSE(Exists("out.dfm"));
}

TEST_F(Ksform, FilesThatCannotBeReadOrWrittenAreNamed)
{
    Put("form.dfm", "object F: TForm\nend\n");
    Put("strange", "neither");
    for (const auto& [Arguments, Name] :
         std::vector<std::pair<std::string, std::string>>{{"convert missing.dfm out", "missing.dfm"},
                                                          {"convert . out", "."},
                                                          {"convert form.dfm missing/out", "missing/out"},
                                                          {"convert strange out", "strange:0"},
                                                          {"check missing.dfm", "missing.dfm"}}) {
        const TOutcome Outcome = Run(Arguments);
        EXPECT_EQ(Outcome.Status, 1) << Arguments;
        EXPECT_THAT(Lines(Outcome.Errors), ElementsAre(HasSubstr(Name))) << Arguments;
    }
    EXPECT_FALSE(Exists("out"));
}

TEST_F(Ksform, MistakesInTheCommandLineAreExplained)
{
    for (const char* Arguments : {"", "dance", "convert", "convert a", "convert a b c", "convert --fast a b",
                                  "check", "list --xml", "list A B"}) {
        const TOutcome Outcome = Run(Arguments);
        EXPECT_EQ(Outcome.Status, 2) << Arguments;
        EXPECT_THAT(Lines(Outcome.Errors), ElementsAre(HasSubstr("--help"))) << Arguments;
    }
}

TEST_F(Ksform, HelpNamesEveryVerbAndTheManualPageTellsOfThem)
{
    const TOutcome Help = Run("--help");
    EXPECT_EQ(Help.Status, 0);
    const std::string Manual = Load(std::string(KS_TEST_DATA) + "/../../docs/man/ksform.1");
    for (const std::string& Line : Lines(Help.Output)) {
        if (!Line.starts_with("  ") || Line.starts_with("  --"))
            continue;
        EXPECT_THAT(Manual, HasSubstr(".B " + Line.substr(2, Line.find(' ', 2) - 2) + "\n"));
    }
    EXPECT_THAT(Run("--version").Output, StartsWith("ksform "));
}

TEST_F(Ksform, CheckIsSilentAboutAGoodForm)
{
    Put("a.dfm", Data("written/generated-20.dfm"));
    Put("a.bin", Data("written/generated-20.bin"));
    Put("a.res", Data("resource/collection-simple.res"));
    const TOutcome Outcome = RunSample("check a.dfm a.bin a.res");
    EXPECT_EQ(Outcome.Status, 0);
    EXPECT_EQ(Outcome.Output + Outcome.Errors, "");
}

TEST_F(Ksform, CheckListsEverySyntaxErrorAndGoesOn)
{
    Put("bad.dfm", "object A: TSampleForm\n"
                   "  Left = ?\n"
                   "  Top = 3\n"
                   "  object C: TSampleControl\n"
                   "    Anchors = [skLeft\n"
                   "    Width = 2\n"
                   "    Caption = 'open\n"
                   "  end\n"
                   "  Height = 3\n"
                   "end\n");
    const TOutcome Outcome = RunSample("check bad.dfm");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_THAT(Lines(Outcome.Output),
                ElementsAre(StartsWith("bad.dfm:2:10: "), StartsWith("bad.dfm:6:5: "),
                            StartsWith("bad.dfm:7:15: "), StartsWith("bad.dfm:9:3: ")));
}

TEST_F(Ksform, CheckListsWhatTheClassesDoNotAccept)
{
    Put("bad.dfm", "object A: TSampleForm\n"
                   "  Nothing = 1\n"
                   "  Left = 'text'\n"
                   "  object C: TNobody\n"
                   "    Left = 'skipped'\n"
                   "  end\n"
                   "  object D: TSampleGrid\n"
                   "    Columns = <\n"
                   "      item\n"
                   "        Wide = 1\n"
                   "      end>\n"
                   "    OnClick = Nobody\n"
                   "    Buddy = Missing\n"
                   "  end\n"
                   "  object D: TSampleControl\n"
                   "  end\n"
                   "end\n");
    const TOutcome Outcome = RunSample("check bad.dfm");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_THAT(Lines(Outcome.Output), ElementsAre(StartsWith("bad.dfm:2:3: "), StartsWith("bad.dfm:3:3: "),
                                                   StartsWith("bad.dfm:4:3: "), StartsWith("bad.dfm:10:9: "),
                                                   StartsWith("bad.dfm:12:5: "), StartsWith("bad.dfm:13:5: "),
                                                   StartsWith("bad.dfm:15:3: ")));
}

TEST_F(Ksform, CheckGivesOffsetsInBinaryForms)
{
    const std::string Text = "object A: TSampleForm\n  Top = 1\n  Nothing = 1\nend\n";
    Put("bad.dfm", Text);
    EXPECT_EQ(Run("convert bad.dfm bad.bin").Status, 0);
    const std::size_t Offset = Get("bad.bin").find("Nothing") - 1;
    EXPECT_THAT(Lines(RunSample("check bad.bin").Output),
                ElementsAre(StartsWith("bad.bin:" + std::to_string(Offset) + ": ")));
}

TEST_F(Ksform, CheckTakesTheComponentsOfAnAncestorAsTheirClassesSay)
{
    Put("child.dfm", Data("written/inherited-changed.dfm"));
    EXPECT_EQ(RunSample("check child.dfm").Output, "");
    Put("child.dfm",
        "inherited A: TSampleForm\n  inherited B: TSampleControl\n    Nothing = 1\n  end\nend\n");
    EXPECT_THAT(Lines(RunSample("check child.dfm").Output), ElementsAre(StartsWith("child.dfm:3:5: ")));
}

TEST_F(Ksform, CheckGoesOnWithTheNextFile)
{
    Put("good.dfm", "object A: TSampleForm\nend\n");
    const TOutcome Outcome = RunSample("check missing.dfm good.dfm");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_THAT(Lines(Outcome.Errors), ElementsAre(HasSubstr("missing.dfm")));
    EXPECT_EQ(Outcome.Output, "");
}

TEST_F(Ksform, CheckKnowsTheStandardControlsAndReadsAFormOfAnUnknownClassAsAPlainOne)
{
    const std::string Good = "object MainForm: TMainForm\n"
                             "  ClientWidth = 300\n"
                             "  PixelsPerInch = 96\n"
                             "  TextHeight = 13\n"
                             "  OldCreateOrder = False\n"
                             "  OnCreate = FormCreate\n"
                             "  object Panel: TPanel\n"
                             "    Align = alTop\n";
    Put("good.dfm", Good + "  end\nend\n");
    EXPECT_EQ(Run("check good.dfm").Output, "");
    Put("bad.dfm", Good + "    Wrong = 1\n  end\nend\n");
    EXPECT_THAT(Lines(Run("check bad.dfm").Output), ElementsAre(StartsWith("bad.dfm:9:5: ")));
}

TEST_F(Ksform, ListShowsTheRowsOfAClass)
{
    EXPECT_THAT(RunSample("list").Output, HasSubstr("TSampleGrid                  TSampleControl\n"));
    const std::string Rows = RunSample("list tsamplecontrol").Output;
    EXPECT_THAT(Rows, StartsWith("TSampleControl < TComponent < TPersistent < TObject\n"));
    EXPECT_THAT(
        Rows, HasSubstr("  Anchors                  TSampleAnchors           always     [skLeft, skTop]\n"));
    EXPECT_THAT(Rows,
                HasSubstr("  Color                    TSampleColor             sometimes  clBtnFace\n"));
    EXPECT_THAT(Rows, HasSubstr("  Name                     string                   never"));
    const TOutcome Outcome = RunSample("list TNobody");
    EXPECT_EQ(Outcome.Status, 1);
    EXPECT_THAT(Lines(Outcome.Errors), ElementsAre(HasSubstr("TNobody")));
}

TEST_F(Ksform, ListAsJsonHoldsEveryPropertyAndEvent)
{
    const auto Declared = nlohmann::json::parse(Data("classes.json"));
    for (const auto& Class : Declared["classes"]) {
        const std::string Name = Class["class"];
        if (std::find(Declared["registered"].begin(), Declared["registered"].end(), Name) ==
            Declared["registered"].end())
            continue;
        const auto Listed = nlohmann::json::parse(RunSample("list " + Name + " --json").Output).at(0);
        EXPECT_EQ(Listed["class"], Name);
        std::vector<std::string> Expected;
        std::vector<std::string> Found;
        for (const auto& Row : Class["properties"])
            Expected.push_back(Row["name"]);
        for (const char* List : {"properties", "events"})
            for (const auto& Row : Listed[List])
                Found.push_back(Row["name"]);
        std::sort(Expected.begin(), Expected.end());
        std::sort(Found.begin(), Found.end());
        EXPECT_EQ(Found, Expected) << Name;
    }
    EXPECT_GT(nlohmann::json::parse(RunSample("list --json").Output).size(), 10u);
}

} // namespace vcl::tests
