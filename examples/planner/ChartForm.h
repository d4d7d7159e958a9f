#pragma once

#include "KSTreeView/KSTreeView.h"
#include "planner/Options.h"
#include "vcl/controls/Menu.h"
#include "vcl/controls/SpeedButton.h"
#include "vcl/controls/StatusBar.h"
#include "vcl/forms/FileDialog.h"
#include "vcl/forms/Form.h"

namespace planner
{

/// A window that shows an indented text file as an organisation chart to be changed, saved, exported and
/// printed. Its looks come from chart.dfm.
class TChartForm : public vcl::TForm
{
    VCL_CLASS
public:
    explicit TChartForm(vcl::TComponent* Owner);

    /// Applies what the command line asks of the window. Call once, after the form file has been read.
    void Start(const TOptions& Options);
    /// Shows a file in place of what was shown. EFOpenError or EKSTreeViewError when it cannot be read; what
    /// was shown then stays.
    void LoadFile(const vcl::AnsiString& FileName);
    /// The same with a message for the user instead of an error; false when it came to that.
    bool OpenFile(const vcl::AnsiString& FileName);
    /// Writes what is shown. False when the user was told why it could not be done.
    bool SaveFile(const vcl::AnsiString& FileName);
    /// Writes a picture of the chart; the extension says which kind: pdf, svg or png.
    void ExportFile(const vcl::AnsiString& FileName);
    bool IsModified() const { return FModified; }
    TKSTreeView* GetTreeView() const { return FView; }

    // Handlers that the form file names
    void OpenClick(vcl::TObject* Sender);
    void SaveClick(vcl::TObject* Sender);
    void SaveAsClick(vcl::TObject* Sender);
    void ExportPdfClick(vcl::TObject* Sender);
    void ExportSvgClick(vcl::TObject* Sender);
    void ExportPngClick(vcl::TObject* Sender);
    void PrintClick(vcl::TObject* Sender);
    void ExitClick(vcl::TObject* Sender);
    void AddChildClick(vcl::TObject* Sender);
    void AddSiblingClick(vcl::TObject* Sender);
    void RenameClick(vcl::TObject* Sender);
    void DeleteClick(vcl::TObject* Sender);
    void ExpandAllClick(vcl::TObject* Sender);
    void CollapseAllClick(vcl::TObject* Sender);
    void ViewChange(vcl::TObject* Sender, TKSTreeNode* Node);
    void ViewEdited(vcl::TObject* Sender, TKSTreeNode* Node, vcl::AnsiString& Text);
    /// Boxes are dragged onto the box they are to stand below.
    void ViewMouseDown(vcl::TObject* Sender, vcl::TMouseButton Button, vcl::TShiftState Shift, int X, int Y);
    void ViewDragOver(vcl::TObject* Sender, vcl::TObject* Source, int X, int Y, vcl::TDragState State,
                      bool& Accept);
    void ViewDragDrop(vcl::TObject* Sender, vcl::TObject* Source, int X, int Y);
    void ViewKeyDown(vcl::TObject* Sender, std::uint16_t& Key, vcl::TShiftState Shift);
    void FormCloseQuery(vcl::TObject* Sender, bool& CanClose);

protected:
    void CMSysColorChange(vcl::TMessage& Message) override;

private:
    void ApplyColors();
    void SetModified(bool Value);
    /// True when nothing would be lost: saved, or not wanted any more.
    bool AskToSave();
    bool SaveAs();
    /// Selects the first box and brings it to the middle of the window's width.
    void ShowTop();
    void NodeAdded(TKSTreeNode* Node);
    /// The box at a point of the view; null: none.
    TKSTreeNode* NodeUnder(int X, int Y) const;
    void Export(const char* Extension, const char* Filter);
    /// The whole chart with the spacing around it.
    vcl::TSize ChartSize();
    void ShowState();
    void ShowSelected(const TKSTreeNode* Node);
    template <class TAction>
    bool Try(TAction&& Action);

    vcl::AnsiString FFileName;
    std::string FLineEnd = "\r\n"; // as the file had it
    bool FModified = false;

    TKSTreeView* FView = nullptr;
    vcl::TStatusBar* FStatusBar = nullptr;
    vcl::TOpenDialog* FOpenDialog = nullptr;
    vcl::TSaveDialog* FSaveDialog = nullptr;
    vcl::TSaveDialog* FExportDialog = nullptr;
};

} // namespace planner
