#include "planner/ChartForm.h"

#include <QSaveFile>

#include "planner/ChartFile.h"
#include "planner/ItemColors.h"
#include "vcl/classes/Stream.h"
#include "vcl/forms/Application.h"
#include "vcl/platform/Dialogs.h"
#include "vcl/platform/Platform.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/WindowSystem.h"
#include "vcl/qt/VectorFile.h"

namespace planner
{

namespace
{

constexpr vcl::TColor BoxTint = vcl::TColor(0xF4DCC4);
constexpr vcl::TColor SelectedTint = vcl::TColor(0x78C8FF);
constexpr const char* NewBoxText = "New box";

template <class T>
T* Part(const TChartForm& Form, const char* Name)
{
    T* const Component = vcl::As<T>(Form.FindComponent(Name));
    if (!Component)
        throw vcl::EReadError(std::string("the chart's form has no ") + T::StaticClass().Name + " " + Name);
    return Component;
}

/// Writes a file whole or not at all: what was there stays when it cannot be written, for instance on a full
/// disk. In a folder that takes no new files the old one is written in place.
void ReplaceFile(const std::string& FileName, const std::string& Text)
{
    QSaveFile File(QString::fromStdString(FileName));
    File.setDirectWriteFallback(true);
    const auto Size = static_cast<qint64>(Text.size());
    if (!File.open(QIODevice::WriteOnly) || File.write(Text.data(), Size) != Size || !File.commit())
        throw vcl::EWriteError("Cannot write " + FileName + ": " + File.errorString().toStdString());
}

/// What is selected on the screen does not stand out on paper, until the end of the block.
class TPlainSelection
{
public:
    explicit TPlainSelection(TKSTreeView& View) : FView(View), FBefore(View.GetHideSelection())
    {
        FView.SetHideSelection(true);
    }
    ~TPlainSelection() { FView.SetHideSelection(FBefore); }
    TPlainSelection(const TPlainSelection&) = delete;
    TPlainSelection& operator=(const TPlainSelection&) = delete;

private:
    TKSTreeView& FView;
    bool FBefore;
};

} // namespace

const vcl::TClass& TChartForm::StaticClass()
{
    using namespace vcl;
    static const TClass Class =
        DefineClass<TChartForm, TForm>("TChartForm", {},
                                       {
                                           PublishedMethod<&TChartForm::OpenClick>("OpenClick"),
                                           PublishedMethod<&TChartForm::SaveClick>("SaveClick"),
                                           PublishedMethod<&TChartForm::SaveAsClick>("SaveAsClick"),
                                           PublishedMethod<&TChartForm::ExportPdfClick>("ExportPdfClick"),
                                           PublishedMethod<&TChartForm::ExportSvgClick>("ExportSvgClick"),
                                           PublishedMethod<&TChartForm::ExportPngClick>("ExportPngClick"),
                                           PublishedMethod<&TChartForm::PrintClick>("PrintClick"),
                                           PublishedMethod<&TChartForm::ExitClick>("ExitClick"),
                                           PublishedMethod<&TChartForm::AddChildClick>("AddChildClick"),
                                           PublishedMethod<&TChartForm::AddSiblingClick>("AddSiblingClick"),
                                           PublishedMethod<&TChartForm::RenameClick>("RenameClick"),
                                           PublishedMethod<&TChartForm::DeleteClick>("DeleteClick"),
                                           PublishedMethod<&TChartForm::ExpandAllClick>("ExpandAllClick"),
                                           PublishedMethod<&TChartForm::CollapseAllClick>("CollapseAllClick"),
                                           PublishedMethod<&TChartForm::ViewChange>("ViewChange"),
                                           PublishedMethod<&TChartForm::ViewEdited>("ViewEdited"),
                                           PublishedMethod<&TChartForm::ViewMouseDown>("ViewMouseDown"),
                                           PublishedMethod<&TChartForm::ViewDragOver>("ViewDragOver"),
                                           PublishedMethod<&TChartForm::ViewDragDrop>("ViewDragDrop"),
                                           PublishedMethod<&TChartForm::ViewKeyDown>("ViewKeyDown"),
                                           PublishedMethod<&TChartForm::FormCloseQuery>("FormCloseQuery"),
                                       });
    return Class;
}

TChartForm::TChartForm(vcl::TComponent* Owner) : TForm(Owner)
{
}

void TChartForm::Start(const TOptions& Options)
{
    FView = Part<TKSTreeView>(*this, "TreeView");
    FStatusBar = Part<vcl::TStatusBar>(*this, "StatusBar");
    FOpenDialog = Part<vcl::TOpenDialog>(*this, "OpenDialog");
    FSaveDialog = Part<vcl::TSaveDialog>(*this, "SaveDialog");
    FExportDialog = Part<vcl::TSaveDialog>(*this, "ExportDialog");
    if (Options.Size)
        SetClientSize(*Options.Size);
    if (Options.RightToLeft) {
        SetBiDiMode(vcl::TBiDiMode::bdRightToLeft);
        FView->SetRightToLeft(true);
    }
    ApplyColors();
    ShowState();
}

void TChartForm::ApplyColors()
{
    const bool IsDark = HasDarkWindows();
    FView->SetNodeColor(ItemColor(BoxTint, IsDark));
    FView->SetSelectedNodeColor(ItemColor(SelectedTint, IsDark));
    FView->SetHiddenSelectedNodeColor(ItemColor(SelectedTint, IsDark));
}

void TChartForm::CMSysColorChange(vcl::TMessage& Message)
{
    TForm::CMSysColorChange(Message);
    if (FView)
        ApplyColors();
}

template <class TAction>
bool TChartForm::Try(TAction&& Action)
{
    try {
        Action();
    } catch (const std::exception& Error) {
        FStatusBar->GetPanels()->GetItem(0)->SetText(Error.what());
        vcl::Application().ShowException(Error);
        return false;
    }
    return true;
}

void TChartForm::LoadFile(const vcl::AnsiString& FileName)
{
    vcl::TMemoryStream Text;
    Text.LoadFromFile(FileName);
    // First into nodes that nobody sees: a bad line must not cost what is shown.
    TKSTreeNodes Trial;
    Trial.ReadText(Text);
    Text.SetPosition(0);
    FView->HideNodeEditor(false);
    FView->GetItems()->BeginUpdate();
    FView->LoadFromStream(Text);
    FView->FullExpand();
    FView->GetItems()->EndUpdate();
    FFileName = FileName;
    FLineEnd = LineEndOf(
        {reinterpret_cast<const char*>(Text.GetMemory()), static_cast<std::size_t>(Text.GetSize())});
    ShowTop();
    SetModified(false);
}

void TChartForm::ShowTop()
{
    TKSTreeNode* const Top = FView->GetItems()->GetFirstNode();
    if (!Top)
        return;
    FView->HandleNeeded();
    FView->CalcSubTreesPos();
    FView->CalcDisplayRect();
    FView->SelectNode(Top);
    FView->GetVertScrollBar()->SetPosition(0);
    FView->GetHorzScrollBar()->ScrollBy(Top->GetCenter() - FView->GetClientWidth() / 2);
}

bool TChartForm::OpenFile(const vcl::AnsiString& FileName)
{
    return Try([&] { LoadFile(FileName); });
}

bool TChartForm::SaveFile(const vcl::AnsiString& FileName)
{
    FView->HideNodeEditor(true);
    const auto Write = [&] {
        vcl::TMemoryStream Stream;
        FView->SaveToStream(Stream);
        const std::string Text(reinterpret_cast<const char*>(Stream.GetMemory()),
                               static_cast<std::size_t>(Stream.GetSize()));
        ReplaceFile(FileName, WithLineEnds(Text, FLineEnd));
    };
    if (!Try(Write))
        return false;
    FFileName = FileName;
    SetModified(false);
    return true;
}

bool TChartForm::SaveAs()
{
    FSaveDialog->SetFileName(FFileName);
    return FSaveDialog->Execute(this) && SaveFile(FSaveDialog->GetFileName());
}

bool TChartForm::AskToSave()
{
    FView->HideNodeEditor(true);
    if (!FModified)
        return true;
    using vcl::TMessageButton;
    const TMessageButton Answer = vcl::Platform().Windows().Dialogs().ShowMessage(
        vcl::TMessageKind::Confirmation, "Chart", "Save the changes to this chart?",
        {TMessageButton::Yes, TMessageButton::No, TMessageButton::Cancel}, GetWindow());
    if (Answer == TMessageButton::Yes)
        return FFileName.empty() ? SaveAs() : SaveFile(FFileName);
    return Answer == TMessageButton::No;
}

void TChartForm::SetModified(bool Value)
{
    FModified = Value;
    ShowState();
}

void TChartForm::ShowState()
{
    SetCaption(ChartTitle(FFileName, FModified));
    FStatusBar->GetPanels()->GetItem(0)->SetText(BoxCountText(FView->GetItems()->GetCount()));
    ShowSelected(FView->GetSelected());
}

void TChartForm::ShowSelected(const TKSTreeNode* Node)
{
    FStatusBar->GetPanels()->GetItem(1)->SetText(Node ? Node->GetText() : vcl::AnsiString());
    for (const char* const Name : {"RenameButton", "DeleteButton"})
        Part<vcl::TSpeedButton>(*this, Name)->SetEnabled(Node != nullptr);
    for (const char* const Name : {"RenameItem", "DeleteItem"})
        Part<vcl::TMenuItem>(*this, Name)->SetEnabled(Node != nullptr);
}

vcl::TSize TChartForm::ChartSize()
{
    FView->CalcSubTreesPos();
    return {FView->GetTotalWidth() + 2 * FView->GetHorzSpacing(),
            FView->GetTotalHeight() + 2 * FView->GetVertSpacing()};
}

void TChartForm::ExportFile(const vcl::AnsiString& FileName)
{
    FView->HideNodeEditor(true);
    const vcl::TSize Size = ChartSize();
    const vcl::TRect Page{0, 0, Size.Width, Size.Height};
    const auto Draw = [this, Page](vcl::TCanvas& Canvas) {
        const TPlainSelection Plain(*FView);
        Canvas.GetBrush()->SetColor(FView->GetColor());
        Canvas.FillRect(Page);
        FView->PrintTo(&Canvas, Page);
    };
    if (FileName.ends_with(".pdf"))
        vcl::SavePdf(FileName, Size, Draw);
    else if (FileName.ends_with(".svg"))
        vcl::SaveSvg(FileName, Size, Draw);
    else if (FileName.ends_with(".png"))
        vcl::SavePng(FileName, Size, Draw);
    else
        throw vcl::EFCreateError("Cannot write \"" + FileName +
                                 "\": its name must end in .pdf, .svg or .png");
}

void TChartForm::Export(const char* Extension, const char* Filter)
{
    FExportDialog->SetDefaultExt(Extension);
    FExportDialog->SetFilter(Filter);
    FExportDialog->SetFileName(WithExtension(FFileName, Extension));
    if (FExportDialog->Execute(this))
        Try([&] { ExportFile(FExportDialog->GetFileName()); });
}

void TChartForm::OpenClick(vcl::TObject*)
{
    if (AskToSave() && FOpenDialog->Execute(this))
        OpenFile(FOpenDialog->GetFileName());
}

void TChartForm::SaveClick(vcl::TObject*)
{
    if (FFileName.empty())
        SaveAs();
    else
        SaveFile(FFileName);
}

void TChartForm::SaveAsClick(vcl::TObject*)
{
    SaveAs();
}

void TChartForm::ExportPdfClick(vcl::TObject*)
{
    Export("pdf", "PDF documents|*.pdf");
}

void TChartForm::ExportSvgClick(vcl::TObject*)
{
    Export("svg", "SVG drawings|*.svg");
}

void TChartForm::ExportPngClick(vcl::TObject*)
{
    Export("png", "PNG pictures|*.png");
}

void TChartForm::PrintClick(vcl::TObject*)
{
    FView->HideNodeEditor(true);
    vcl::TPrintJob Job;
    Job.Title = GetCaption();
    Job.Arrange = [this](vcl::TSize Paper) {
        const vcl::TSize Page = PrintPageFor(ChartSize(), Paper);
        return vcl::TPrintJob::TPages{Page, FView->GetPrintPageCount(Page)};
    };
    Job.DrawPage = [this](vcl::TCanvas& Canvas, vcl::TSize Size, int Page) {
        const TPlainSelection Plain(*FView);
        FView->PrintTo(&Canvas, {0, 0, Size.Width, Size.Height}, TKSTVPrintMode::pmPaged, Page);
    };
    Try([&] { vcl::Print(this, Job); });
}

void TChartForm::ExitClick(vcl::TObject*)
{
    Close();
}

TKSTreeNode* TChartForm::NodeUnder(int X, int Y) const
{
    TKSTreeNode* Node = nullptr;
    return FView->InternalGetHitTestInfoAt(X, Y, Node).Contains(TKSTVHitTest::htOnItem) ? Node : nullptr;
}

void TChartForm::ViewMouseDown(vcl::TObject*, vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y)
{
    const bool IsPress = Button == vcl::TMouseButton::mbLeft && !Shift.Contains(vcl::TShiftKey::ssDouble);
    if (IsPress && !FView->IsEditing() && NodeUnder(X, Y))
        FView->BeginDrag(false);
}

void TChartForm::ViewDragOver(vcl::TObject*, vcl::TObject* Source, int X, int Y, vcl::TDragState,
                              bool& Accept)
{
    const TKSTreeNode* const Target = NodeUnder(X, Y);
    const TKSTreeNode* const Dragged = FView->GetFocusedNode();
    Accept = Source == FView && Dragged && Target && Target != Dragged && Target != Dragged->GetParent() &&
             !Target->HasAsParent(Dragged);
}

void TChartForm::ViewDragDrop(vcl::TObject*, vcl::TObject*, int X, int Y)
{
    TKSTreeNode* const Target = NodeUnder(X, Y);
    TKSTreeNode* const Dragged = FView->GetFocusedNode();
    Dragged->MoveTo(Target);
    Target->Expand(false);
    FView->ScrollInView(Dragged);
    SetModified(true);
}

void TChartForm::NodeAdded(TKSTreeNode* Node)
{
    SetModified(true);
    Node->MakeVisible();
    FView->Refresh();
    FView->SelectNode(Node);
    FView->EditNode(Node);
}

void TChartForm::AddChildClick(vcl::TObject*)
{
    FView->HideNodeEditor(true);
    NodeAdded(FView->GetItems()->AddChild(FView->GetSelected(), NewBoxText));
}

void TChartForm::AddSiblingClick(vcl::TObject*)
{
    FView->HideNodeEditor(true);
    NodeAdded(FView->GetItems()->Add(FView->GetSelected(), NewBoxText));
}

void TChartForm::RenameClick(vcl::TObject*)
{
    if (FView->GetSelected())
        FView->EditNode(FView->GetSelected());
}

void TChartForm::DeleteClick(vcl::TObject*)
{
    TKSTreeNode* const Node = FView->GetSelected();
    if (!Node)
        return;
    TKSTreeNode* Next = Node->GetNextSibling();
    if (!Next)
        Next = Node->GetPrevSibling() ? Node->GetPrevSibling() : Node->GetParent();
    Node->Delete();
    FView->SelectNode(Next);
    SetModified(true);
}

void TChartForm::ExpandAllClick(vcl::TObject*)
{
    FView->FullExpand();
}

void TChartForm::CollapseAllClick(vcl::TObject*)
{
    FView->FullCollapse();
}

void TChartForm::ViewChange(vcl::TObject*, TKSTreeNode* Node)
{
    // The view itself may still name the node selected before.
    ShowSelected(Node);
}

void TChartForm::ViewEdited(vcl::TObject*, TKSTreeNode* Node, vcl::AnsiString& Text)
{
    // A tab or a line break would be structure in the file.
    for (char& Letter : Text)
        if (static_cast<unsigned char>(Letter) < ' ')
            Letter = ' ';
    if (Text != Node->GetText())
        SetModified(true);
}

void TChartForm::ViewKeyDown(vcl::TObject* Sender, std::uint16_t& Key, vcl::TShiftState Shift)
{
    // Not shortcuts of the menu, which would take these keys from the editor in a box.
    switch (Key) {
    case vcl::VK_DELETE:
        DeleteClick(Sender);
        break;
    case vcl::VK_INSERT:
        if (Shift.Contains(vcl::TShiftKey::ssShift))
            AddSiblingClick(Sender);
        else
            AddChildClick(Sender);
        break;
    default:
        return;
    }
    Key = 0;
}

void TChartForm::FormCloseQuery(vcl::TObject*, bool& CanClose)
{
    CanClose = AskToSave();
}

} // namespace planner
