#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPointer>
#include <QSpinBox>
#include <QTest>
#include <QTreeWidget>

#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/WindowStyles.h"
#include "vcl/qt/platform/TestOwner.h"

namespace vcl
{

namespace
{

class QtPeer : public ::testing::Test
{
protected:
    std::unique_ptr<TTestOwner> Make(TWindowKind Kind, std::uint32_t Style = 0)
    {
        auto Owner = std::make_unique<TTestOwner>(Kind, &Form, Bounds(10, 10, 150, 80), WS_CHILD | Style);
        Owner->Window->SetVisible(true);
        ProcessEvents();
        Owner->Messages.clear();
        return Owner;
    }

    /// The notices told, with their indexes.
    static std::vector<std::pair<TPeerNotice, std::int64_t>> Notices(const TTestOwner& Owner)
    {
        std::vector<std::pair<TPeerNotice, std::int64_t>> Result;
        for (const TMessage& Message : Owner.Messages)
            if (Message.Msg == CN_COMMAND)
                Result.emplace_back(static_cast<TPeerNotice>(Message.WParam), Message.LParam);
        return Result;
    }

    TTestForm Form;
};

using TNotices = std::vector<std::pair<TPeerNotice, std::int64_t>>;

} // namespace

TEST_F(QtPeer, TypedTextPassesTheControlAndIsTold)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetFocus();
    QTest::keyClicks(Edit->Widget(), "ab");
    EXPECT_EQ(Edit->Window->GetText(), "ab");
    EXPECT_EQ(Edit->Count(WM_KEYDOWN), 2);
    EXPECT_EQ(Edit->Count(WM_CHAR), 2);
    EXPECT_EQ(Edit->Count(WM_KEYUP), 2);
    EXPECT_EQ(Notices(*Edit), (TNotices{{TPeerNotice::TextChanged, 0}, {TPeerNotice::TextChanged, 0}}));
}

TEST_F(QtPeer, ACharacterThatAHandlerConsumesIsNotWritten)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetFocus();
    Edit->OnMessage = [](TMessage& Message) { return Message.Msg == WM_CHAR && Message.WParam == 'b'; };
    QTest::keyClicks(Edit->Widget(), "abc");
    EXPECT_EQ(Edit->Window->GetText(), "ac");
}

TEST_F(QtPeer, ACharacterThatAHandlerChangesIsWrittenChanged)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetFocus();
    Edit->OnMessage = [](TMessage& Message) {
        if (Message.Msg == WM_CHAR && Message.WParam == 'b')
            Message.WParam = 'X';
        return false;
    };
    QTest::keyClicks(Edit->Widget(), "abc");
    EXPECT_EQ(Edit->Window->GetText(), "aXc");
}

TEST_F(QtPeer, KeysThatWriteNothingReachTheEditOnceTheControlLeavesThem)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetText("abc");
    Edit->Window->SetFocus();
    Edit->Window->Edit()->SetSelection(3, 0);
    QTest::keyClick(Edit->Widget(), Qt::Key_Left);
    QTest::keyClick(Edit->Widget(), Qt::Key_Backspace);
    EXPECT_EQ(Edit->Window->GetText(), "ac");
    Edit->OnMessage = [](TMessage& Message) {
        if (Message.Msg == WM_KEYDOWN)
            Message.Result = 1;
        return Message.Msg == WM_KEYDOWN;
    };
    QTest::keyClick(Edit->Widget(), Qt::Key_Delete);
    EXPECT_EQ(Edit->Window->GetText(), "ac");
}

TEST_F(QtPeer, AClickAndAPostedMouseMessagePlaceTheCaret)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetText("WWWWWWWWWW");
    QTest::mouseClick(Edit->Widget(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 40));
    EXPECT_EQ(Edit->Window->Edit()->GetSelStart(), 0);
    EXPECT_TRUE(Edit->Window->HasFocus());
    EXPECT_EQ(Edit->Count(WM_LBUTTONDOWN), 1);
    TMessage Posted{WM_LBUTTONDOWN, MK_LBUTTON, MakePointParam(60, 40), 0};
    Edit->Window->DefaultMessage(Posted);
    EXPECT_GT(Edit->Window->Edit()->GetSelStart(), 1);
    EXPECT_EQ(Edit->Count(WM_LBUTTONDOWN), 1) << "a posted message does not come back";
}

TEST_F(QtPeer, AClickThatTheControlConsumesChangesNothing)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetText("WWWWWWWWWW");
    Edit->Window->Edit()->SetSelection(4, 0);
    Edit->OnMessage = [](TMessage& Message) { return Message.Msg == WM_LBUTTONDOWN; };
    QTest::mouseClick(Edit->Widget(), Qt::LeftButton, Qt::NoModifier, QPoint(3, 40));
    EXPECT_EQ(Edit->Window->Edit()->GetSelStart(), 4);
    EXPECT_FALSE(Edit->Window->HasFocus());
}

TEST_F(QtPeer, PostedCharactersAreWrittenAndClipboardMessagesObeyed)
{
    const auto Edit = Make(TWindowKind::Edit);
    for (const std::uint64_t Character : {std::uint64_t{'x'}, std::uint64_t{0x1F389}, std::uint64_t{'y'}}) {
        TMessage Message{WM_CHAR, Character, 0, 0};
        Edit->Window->DefaultMessage(Message);
    }
    EXPECT_EQ(Edit->Window->GetText(), "x\xF0\x9F\x8E\x89y");
    Edit->Window->Edit()->SetSelection(1, 1);
    EXPECT_EQ(Edit->Window->Edit()->GetSelStart(), 1);
    EXPECT_EQ(Edit->Window->Edit()->GetSelLength(), 1);
    TMessage Cut{WM_CUT, 0, 0, 0};
    Edit->Window->DefaultMessage(Cut);
    EXPECT_EQ(Edit->Window->GetText(), "xy");
    EXPECT_EQ(Platform().Windows().Clipboard().GetText(), "\xF0\x9F\x8E\x89");
}

TEST_F(QtPeer, TextSetByTheControlIsNotTold)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetText("set");
    EXPECT_TRUE(Notices(*Edit).empty());
    Edit->Window->Edit()->ReplaceSelection("!");
    EXPECT_EQ(Notices(*Edit).size(), 1u);
}

TEST_F(QtPeer, CommittedInputMethodTextGoesTheWayOfTypedText)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetFocus();
    QInputMethodEvent Event;
    Event.setCommitString(QString::fromUtf8("\xC3\xA9\xC3\xA8"));
    QApplication::sendEvent(Edit->Widget(), &Event);
    EXPECT_EQ(Edit->Count(WM_CHAR), 2);
    EXPECT_EQ(Edit->Window->GetText(), "\xC3\xA9\xC3\xA8");
}

TEST_F(QtPeer, AHandlerMayReleaseAnEditWithinItsKey)
{
    const auto Edit = Make(TWindowKind::Edit);
    const QPointer<QWidget> Widget = Edit->Widget();
    Edit->Window->SetFocus();
    for (const unsigned Msg : {WM_KEYDOWN, WM_CHAR}) {
        const auto Victim = Make(TWindowKind::Edit);
        Victim->Window->SetFocus();
        Victim->OnMessage = [&](TMessage& Message) {
            if (Message.Msg == Msg)
                Victim->Window.reset();
            return Message.Msg == Msg;
        };
        const QPointer<QWidget> Face = Victim->Widget();
        QTest::keyClick(Face, Qt::Key_A);
        EXPECT_FALSE(Victim->Window);
    }
}

TEST_F(QtPeer, AButtonTellsItsClicks)
{
    const auto Button = Make(TWindowKind::Button);
    QTest::mouseClick(Button->Widget(), Qt::LeftButton);
    EXPECT_EQ(Notices(*Button), (TNotices{{TPeerNotice::Clicked, 0}}));
    EXPECT_TRUE(Button->Window->HasFocus());
    QTest::keyClick(Button->Widget(), Qt::Key_Space);
    EXPECT_EQ(Notices(*Button).size(), 2u);
}

TEST_F(QtPeer, AButtonMayBeReleasedByItsClick)
{
    const auto Button = Make(TWindowKind::Button);
    Button->OnMessage = [&](TMessage& Message) {
        if (Message.Msg == CN_COMMAND)
            Button->Window.reset();
        return Message.Msg == CN_COMMAND;
    };
    QTest::mouseClick(Button->Widget(), Qt::LeftButton);
    EXPECT_FALSE(Button->Window);
    ProcessEvents();
}

TEST_F(QtPeer, ACheckBoxChangesBeforeItTells)
{
    const auto Box = Make(TWindowKind::CheckBox);
    TCheckState Seen = TCheckState::Grayed;
    Box->OnMessage = [&](TMessage& Message) {
        if (Message.Msg == CN_COMMAND)
            Seen = Box->Window->Button()->GetCheckState();
        return false;
    };
    QTest::mouseClick(Box->Widget(), Qt::LeftButton, Qt::NoModifier, QPoint(8, 40));
    EXPECT_EQ(Seen, TCheckState::Checked);
    Box->Window->Button()->SetCheckState(TCheckState::Unchecked);
    EXPECT_EQ(Notices(*Box).size(), 1u);
}

TEST_F(QtPeer, AToolButtonLeavesTheFocusWhereItIs)
{
    const auto Edit = Make(TWindowKind::Edit);
    const auto Tool = Make(TWindowKind::ToolButton);
    Edit->Window->SetFocus();
    QTest::mouseClick(Tool->Widget(), Qt::LeftButton);
    EXPECT_EQ(Notices(*Tool).size(), 1u);
    EXPECT_TRUE(Edit->Window->HasFocus());
}

TEST_F(QtPeer, AListTellsWhatTheUserChoosesAndActivates)
{
    const auto List = Make(TWindowKind::ListBox);
    const std::vector<AnsiString> Items = {"one", "two", "three"};
    IListPeer* const Peer = List->Window->List();
    Peer->SetItems(Items);
    Peer->SetItemIndex(0);
    EXPECT_TRUE(Notices(*List).empty());
    auto* const Face = static_cast<QListWidget*>(List->Widget());
    const QPoint Second = Face->visualItemRect(Face->item(1)).center();
    QTest::mouseClick(Face->viewport(), Qt::LeftButton, Qt::NoModifier, Second);
    EXPECT_EQ(Peer->GetItemIndex(), 1);
    EXPECT_EQ(Notices(*List), (TNotices{{TPeerNotice::ItemSelected, 1}}));
    EXPECT_TRUE(List->Window->HasFocus());
    const TRect Third = Peer->ItemRect(2);
    EXPECT_EQ(Peer->ItemAt({20, (Third.Top + Third.Bottom) / 2}), 2);
    QTest::keyClick(Face, Qt::Key_Down);
    EXPECT_EQ(Peer->GetItemIndex(), 2);
    Peer->DeleteItem(2);
    EXPECT_EQ(Peer->GetItemIndex(), -1);
}

TEST_F(QtPeer, AComboBoxIsAChoiceOrAlsoAnEdit)
{
    const std::vector<AnsiString> Items = {"one", "two"};
    const auto Choice = Make(TWindowKind::ComboBox, CBS_DROPDOWNLIST);
    EXPECT_EQ(Choice->Window->Edit(), nullptr);
    Choice->Window->List()->SetItems(Items);
    EXPECT_EQ(Choice->Window->List()->GetItemIndex(), -1);
    Choice->Window->SetFocus();
    QTest::keyClick(Choice->Widget(), Qt::Key_Down);
    EXPECT_EQ(Notices(*Choice), (TNotices{{TPeerNotice::ItemSelected, 0}}));
    const auto Editable = Make(TWindowKind::ComboBox, CBS_DROPDOWN);
    Editable->Window->List()->SetItems(Items);
    Editable->Window->SetFocus();
    QTest::keyClicks(Editable->Widget(), "x");
    EXPECT_EQ(Editable->Window->GetText(), "x");
    EXPECT_EQ(Editable->Count(WM_CHAR), 1);
    EXPECT_EQ(Notices(*Editable), (TNotices{{TPeerNotice::TextChanged, 0}}));
}

TEST_F(QtPeer, ASpinEditCountsWithinItsRange)
{
    const auto Spin = Make(TWindowKind::SpinEdit);
    Spin->Window->Spin()->SetRange(0, 10);
    Spin->Window->Spin()->SetValue(9);
    EXPECT_TRUE(Notices(*Spin).empty());
    Spin->Window->SetFocus();
    QTest::keyClick(Spin->Widget(), Qt::Key_Up);
    QTest::keyClick(Spin->Widget(), Qt::Key_Up);
    EXPECT_EQ(Spin->Window->Spin()->GetValue(), 10);
    EXPECT_EQ(Notices(*Spin).size(), 2u) << "text and value, once";
}

TEST_F(QtPeer, AListViewHoldsRowsAndTellsWhichOneIsChosen)
{
    const auto View = Make(TWindowKind::ListView);
    IListViewPeer* const Peer = View->Window->ListView();
    Peer->SetViewStyle(TListViewStyle::Report);
    const std::vector<TListColumnSpec> Columns = {{"Name", 60, TTextAlign::Left},
                                                  {"Size", 40, TTextAlign::Right}};
    Peer->SetColumns(Columns);
    for (int Index = 0; Index < 3; ++Index) {
        const std::vector<AnsiString> Cells = {"row " + IntToStr(Index), IntToStr(Index)};
        Peer->InsertRow(Index, Cells);
    }
    EXPECT_EQ(Peer->GetColumnWidth(1), 40);
    auto* const Face = static_cast<QTreeWidget*>(View->Widget());
    const QPoint Second = Face->visualItemRect(Face->topLevelItem(1)).center();
    QTest::mouseClick(Face->viewport(), Qt::LeftButton, Qt::NoModifier, Second);
    EXPECT_TRUE(Peer->IsSelected(1));
    EXPECT_EQ(Notices(*View), (TNotices{{TPeerNotice::ItemSelected, 1}}));
    EXPECT_EQ(Face->topLevelItem(2)->text(1), "2");
}

TEST_F(QtPeer, AStatusBarShowsPanelsAndTellsWhichOneWasClicked)
{
    const auto Bar = Make(TWindowKind::StatusBar);
    const std::vector<TStatusPanelSpec> Panels = {{"left", 50, TTextAlign::Left, 1},
                                                  {"rest", 50, TTextAlign::Left, 1}};
    Bar->Window->StatusBar()->SetPanels(Panels);
    ProcessEvents();
    QTest::mouseClick(Bar->Widget(), Qt::LeftButton, Qt::NoModifier, QPoint(100, 40));
    EXPECT_EQ(Notices(*Bar), (TNotices{{TPeerNotice::PanelClicked, 1}}));
}

TEST_F(QtPeer, ALabelIsAsWideAsItsTextWithoutTheAccessKeysMark)
{
    const auto Label = Make(TWindowKind::Label);
    Label->Window->SetText("&Name");
    const int Marked = Label->Window->GetPreferredSize().Width;
    Label->Window->SetText("Name");
    EXPECT_EQ(Label->Window->GetPreferredSize().Width, Marked);
    EXPECT_GT(Marked, 10);
}

TEST_F(QtPeer, ColorsOfTheControlShowInThePeer)
{
    const auto Edit = Make(TWindowKind::Edit);
    Edit->Window->SetColors(TColor(0x0000FF), TColor(0x00FFFF), false);
    EXPECT_EQ(Edit->Widget()->palette().color(QPalette::Base), QColor(255, 255, 0));
    EXPECT_EQ(Edit->Widget()->palette().color(QPalette::Text), QColor(255, 0, 0));
    Edit->Window->SetColors(TColor(0), TColor(0), true);
    EXPECT_EQ(Edit->Widget()->palette().color(QPalette::Base), QApplication::palette().color(QPalette::Base));
}

TEST_F(QtPeer, APictureOfAPeerShowsItsText)
{
    const auto Label = Make(TWindowKind::Label);
    Label->Window->SetText("MMMM");
    std::vector<std::uint32_t> Pixels(200 * 100, 0xFFFFFFFF);
    Label->Window->RenderTo({Pixels.data(), 200, 100, 200}, {20, 30});
    const auto Dark =
        std::count_if(Pixels.begin(), Pixels.end(), [](std::uint32_t Pixel) { return Pixel != 0xFFFFFFFF; });
    EXPECT_GT(Dark, 50);
    for (int Index = 0; Index < 30 * 200; ++Index)
        ASSERT_EQ(Pixels[static_cast<std::size_t>(Index)], 0xFFFFFFFF);
}

} // namespace vcl
