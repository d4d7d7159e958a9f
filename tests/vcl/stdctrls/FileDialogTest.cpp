#include "StandardFixture.h"

#include "vcl/forms/FileDialog.h"

namespace vcl::tests
{

namespace
{

/// The platform without a screen, with a file dialog that notes what it is asked.
class TDialogs final : public IDialogs
{
public:
    bool ChooseFile(TFileDialogSpec& Spec, std::vector<AnsiString>& Files, IWindow* Parent) override
    {
        ++Calls;
        Asked = Spec;
        Over = Parent;
        if (Answers.empty())
            return false;
        Files = Answers.front();
        Answers.erase(Answers.begin());
        Spec.FilterIndex = ChosenFilter;
        return true;
    }
    TMessageButton ShowMessage(TMessageKind, const AnsiString&, const AnsiString&,
                               const std::vector<TMessageButton>&, IWindow*) override
    {
        return TMessageButton::Ok;
    }
    bool ChooseColor(TColor&, IWindow*) override { return false; }
    bool ChooseFont(TFontSpec&, TColor&, IWindow*) override { return false; }

    std::vector<std::vector<AnsiString>> Answers;
    TFileDialogSpec Asked;
    IWindow* Over = nullptr;
    int Calls = 0;
    int ChosenFilter = 1;
};

} // namespace

class TFileDialogTest : public TStandardTest
{
protected:
    TFileDialogTest() { Windows().UseDialogs(&FDialogs); }

    TDialogs FDialogs;
};

TEST_F(TFileDialogTest, TheDialogIsAskedForWhatThePropertiesSay)
{
    TSaveDialog& Dialog = *New<TSaveDialog>(&Form());
    Dialog.SetTitle("Save as");
    Dialog.SetFileName("plan.ics");
    Dialog.SetInitialDir("/home/me");
    Dialog.SetFilter("Calendars|*.ics|All files|*");
    Dialog.SetFilterIndex(2);
    Dialog.SetDefaultExt("ics");
    Dialog.SetOptions({TOpenOption::ofOverwritePrompt, TOpenOption::ofFileMustExist});
    ShowForm();
    EXPECT_FALSE(Dialog.Execute(&Form()));
    const TFileDialogSpec& Asked = FDialogs.Asked;
    EXPECT_TRUE(Asked.Save && Asked.OverwritePrompt && Asked.FileMustExist);
    EXPECT_FALSE(Asked.AllowMultiSelect);
    EXPECT_EQ(Asked.Title, "Save as");
    EXPECT_EQ(Asked.FileName, "plan.ics");
    EXPECT_EQ(Asked.InitialDir, "/home/me");
    EXPECT_EQ(Asked.Filter, "Calendars|*.ics|All files|*");
    EXPECT_EQ(Asked.FilterIndex, 2);
    EXPECT_EQ(Asked.DefaultExt, "ics");
    EXPECT_EQ(FDialogs.Over, Form().GetWindow());
    EXPECT_EQ(Dialog.GetFileName(), "plan.ics") << "cancelled: as it was";
}

TEST_F(TFileDialogTest, AChoiceSetsTheFilesAndTheFilter)
{
    TOpenDialog& Dialog = *New<TOpenDialog>(&Form());
    Dialog.SetOptions({TOpenOption::ofAllowMultiSelect});
    Dialog.OnShow = Noting("show");
    Dialog.OnClose = Noting("close");
    FDialogs.Answers = {{"a.ics", "b.ics"}};
    FDialogs.ChosenFilter = 2;
    EXPECT_TRUE(Dialog.Execute());
    EXPECT_FALSE(FDialogs.Asked.Save);
    EXPECT_TRUE(FDialogs.Asked.AllowMultiSelect);
    EXPECT_EQ(Dialog.GetFileName(), "a.ics");
    EXPECT_EQ(Dialog.GetFiles().GetCommaText(), "a.ics,b.ics");
    EXPECT_EQ(Dialog.GetFilterIndex(), 2);
    EXPECT_THAT(TakeNotes(), ElementsAre("show", "close"));
}

TEST_F(TFileDialogTest, ARefusedChoiceOpensTheDialogAgain)
{
    TOpenDialog& Dialog = *New<TOpenDialog>(&Form());
    FDialogs.Answers = {{"bad"}, {"good"}};
    Dialog.OnCanClose = [&](TObject*, bool& CanClose) { CanClose = Dialog.GetFileName() == "good"; };
    EXPECT_TRUE(Dialog.Execute());
    EXPECT_EQ(FDialogs.Calls, 2);
    EXPECT_EQ(Dialog.GetFileName(), "good");
}

TEST_F(TFileDialogTest, AHandlerMayFreeTheDialog)
{
    TOpenDialog* Dialog = New<TOpenDialog>(&Form());
    Dialog->OnShow = [&](TObject*) { delete Dialog; };
    EXPECT_FALSE(Dialog->Execute());
    EXPECT_EQ(FDialogs.Calls, 0);
    Dialog = New<TOpenDialog>(&Form());
    FDialogs.Answers = {{"file"}};
    Dialog->OnClose = [&](TObject*) { delete Dialog; };
    EXPECT_TRUE(Dialog->Execute());
}

} // namespace vcl::tests
