#include <QHeaderView>
#include <QTreeWidget>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtLineEdit.h"
#include "vcl/platform/qt/QtMenu.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

class TListViewWindow final : public TPeerWindow, private IListViewPeer
{
public:
    TListViewWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, new QTreeWidget(Parent))
    {
        Face().setRootIsDecorated(false);
        Face().setUniformRowHeights(true);
        Face().setAllColumnsShowFocus(true);
        Face().header()->setStretchLastSection(false);
        Face().header()->setSectionsClickable(true);
        QObject::connect(&Face(), &QTreeWidget::itemSelectionChanged, &Face(),
                         [this] { Notice(TPeerNotice::ItemSelected, GetFocusedRow()); });
        QObject::connect(&Face(), &QTreeWidget::activated, &Face(), [this](const QModelIndex& Index) {
            Notice(TPeerNotice::ItemActivated, Index.row());
        });
        QObject::connect(Face().header(), &QHeaderView::sectionClicked, &Face(),
                         [this](int Column) { Notice(TPeerNotice::ColumnClicked, Column); });
    }

    IListViewPeer* ListView() override { return this; }

private:
    QTreeWidget& Face() const { return static_cast<QTreeWidget&>(*Widget()); }
    std::vector<QWidget*> InputWidgets() const override { return {Widget(), Face().viewport()}; }
    QTreeWidgetItem* Row(int Index) const { return Widget() ? Face().topLevelItem(Index) : nullptr; }

    void SetViewStyle(TListViewStyle Style) override
    {
        FStyleOfView = Style;
        ApplyHeader();
    }
    void SetColumns(std::span<const TListColumnSpec> Columns) override
    {
        if (!Widget())
            return;
        Face().setColumnCount(std::max(1, static_cast<int>(Columns.size())));
        for (int Index = 0; Index < static_cast<int>(Columns.size()); ++Index) {
            const TListColumnSpec& Column = Columns[static_cast<std::size_t>(Index)];
            Face().headerItem()->setText(Index, ToQt(Column.Caption));
            Face().headerItem()->setTextAlignment(Index, AlignmentOf(Column.Alignment));
            if (Column.Width >= 0)
                Face().setColumnWidth(Index, Column.Width);
        }
        ApplyHeader();
    }
    void SetShowHeader(bool Show) override
    {
        FShowHeader = Show;
        ApplyHeader();
    }
    void ApplyHeader()
    {
        if (!Widget())
            return;
        const bool Report = FStyleOfView == TListViewStyle::Report;
        Face().setHeaderHidden(!FShowHeader || !Report);
        for (int Column = 1; Column < Face().columnCount(); ++Column)
            Face().setColumnHidden(Column, !Report);
    }
    int GetColumnWidth(int Column) const override { return Widget() ? Face().columnWidth(Column) : 0; }

    void InsertRow(int Index, std::span<const AnsiString> Cells) override
    {
        const TSilence Silence(*this);
        if (!Widget() || Index < 0 || Index > Face().topLevelItemCount())
            return;
        auto* const Item = new QTreeWidgetItem;
        Face().insertTopLevelItem(Index, Item);
        SetRow(Index, Cells);
        if (FCheckBoxes)
            Item->setCheckState(0, Qt::Unchecked);
    }
    void SetRow(int Index, std::span<const AnsiString> Cells) override
    {
        QTreeWidgetItem* const Item = Row(Index);
        if (!Item)
            return;
        for (int Column = 0; Column < static_cast<int>(Cells.size()); ++Column) {
            Item->setText(Column, ToQt(Cells[static_cast<std::size_t>(Column)]));
            Item->setTextAlignment(Column, Qt::Alignment(Face().headerItem()->textAlignment(Column)));
        }
    }
    void DeleteRow(int Index) override
    {
        const TSilence Silence(*this);
        delete Row(Index);
    }
    void Clear() override
    {
        const TSilence Silence(*this);
        if (Widget())
            Face().clear();
    }
    void SetRowGlyph(int Index, const TPixelBuffer& Glyph) override
    {
        if (QTreeWidgetItem* const Item = Row(Index))
            Item->setIcon(0, QIcon(PixmapOf(Glyph)));
    }
    void SetCheckBoxes(bool Show) override
    {
        FCheckBoxes = Show;
        for (int Index = 0; Widget() && Index < Face().topLevelItemCount(); ++Index)
            Row(Index)->setData(0, Qt::CheckStateRole, Show ? QVariant(Qt::Unchecked) : QVariant());
    }
    void SetChecked(int Index, bool Checked) override
    {
        if (QTreeWidgetItem* const Item = Row(Index))
            Item->setCheckState(0, Checked ? Qt::Checked : Qt::Unchecked);
    }
    bool IsChecked(int Index) const override
    {
        const QTreeWidgetItem* const Item = Row(Index);
        return Item && Item->checkState(0) == Qt::Checked;
    }
    void SetMultiSelect(bool Multi) override
    {
        if (Widget())
            Face().setSelectionMode(Multi ? QAbstractItemView::ExtendedSelection
                                          : QAbstractItemView::SingleSelection);
    }
    void SetRowSelect(bool WholeRow) override
    {
        if (Widget())
            Face().setAllColumnsShowFocus(WholeRow);
    }
    void SetSelected(int Index, bool Selected) override
    {
        const TSilence Silence(*this);
        if (QTreeWidgetItem* const Item = Row(Index))
            Item->setSelected(Selected);
    }
    bool IsSelected(int Index) const override
    {
        const QTreeWidgetItem* const Item = Row(Index);
        return Item && Item->isSelected();
    }
    void SetFocusedRow(int Index) override
    {
        const TSilence Silence(*this);
        if (Widget())
            Face().setCurrentItem(Row(Index), 0, QItemSelectionModel::NoUpdate);
    }
    int GetFocusedRow() const override { return Widget() ? Face().currentIndex().row() : -1; }
    void ScrollIntoView(int Index) override
    {
        if (QTreeWidgetItem* const Item = Row(Index))
            Face().scrollToItem(Item);
    }
    int RowAt(TPoint Point) const override
    {
        if (!Widget())
            return -1;
        return Face().indexAt(Face().viewport()->mapFrom(Widget(), ToQt(Point))).row();
    }

    TListViewStyle FStyleOfView = TListViewStyle::Icon;
    bool FShowHeader = true;
    bool FCheckBoxes = false;
};

} // namespace

std::shared_ptr<TWindow> MakeListViewWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TListViewWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
