#include <QListWidget>
#include <QScrollBar>

#include "vcl/platform/qt/QtConvert.h"
#include "vcl/platform/qt/QtPeer.h"
#include "vcl/platform/qt/QtWindowKinds.h"

namespace vcl::qt
{

namespace
{

class TListWindow final : public TPeerWindow, private IListPeer
{
public:
    TListWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
        : TPeerWindow(Owner, Style, new QListWidget(Parent))
    {
        ApplyStyle();
        Face().setEditTriggers(QAbstractItemView::NoEditTriggers);
        Face().setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
        QObject::connect(&Face(), &QListWidget::itemSelectionChanged, &Face(),
                         [this] { Notice(TPeerNotice::ItemSelected, Face().currentRow()); });
        QObject::connect(&Face(), &QListWidget::activated, &Face(), [this](const QModelIndex& Index) {
            Notice(TPeerNotice::ItemActivated, Index.row());
        });
    }

    void SetStyle(const TWindowStyle& Style) override
    {
        TPeerWindow::SetStyle(Style);
        if (Widget())
            ApplyStyle();
    }
    IListPeer* List() override { return this; }

private:
    QListWidget& Face() const { return static_cast<QListWidget&>(*Widget()); }
    std::vector<QWidget*> InputWidgets() const override { return {Widget(), Face().viewport()}; }
    bool IsIndex(int Index) const { return Widget() && Index >= 0 && Index < Face().count(); }

    void ApplyStyle()
    {
        Face().setSelectionMode((FStyle.Style & LBS_EXTENDEDSEL) != 0   ? QAbstractItemView::ExtendedSelection
                                : (FStyle.Style & LBS_MULTIPLESEL) != 0 ? QAbstractItemView::MultiSelection
                                                                        : QAbstractItemView::SingleSelection);
    }
    QListWidgetItem* MakeItem(const AnsiString& Text) const
    {
        auto* const Item = new QListWidgetItem(ToQt(Text));
        if (FItemHeight > 0)
            Item->setSizeHint(QSize(0, FItemHeight));
        return Item;
    }

    void SetItems(std::span<const AnsiString> Items) override
    {
        const TSilence Silence(*this);
        if (!Widget())
            return;
        Face().clear();
        for (const AnsiString& Item : Items)
            Face().addItem(MakeItem(Item));
    }
    void InsertItem(int Index, const AnsiString& Text) override
    {
        const TSilence Silence(*this);
        if (Widget() && Index >= 0 && Index <= Face().count())
            Face().insertItem(Index, MakeItem(Text));
    }
    void DeleteItem(int Index) override
    {
        const TSilence Silence(*this);
        if (!IsIndex(Index))
            return;
        // Deleting the chosen item leaves none chosen; the toolkit would move on to the next.
        const bool WasChosen = Index == Face().currentRow();
        delete Face().takeItem(Index);
        if (WasChosen)
            SetItemIndex(-1);
    }
    void SetItemText(int Index, const AnsiString& Text) override
    {
        if (IsIndex(Index))
            Face().item(Index)->setText(ToQt(Text));
    }
    void SetItemIndex(int Index) override
    {
        const TSilence Silence(*this);
        if (!Widget() || Index < -1 || Index >= Face().count())
            return;
        Face().setCurrentRow(Index);
        if (Index < 0)
            Face().clearSelection();
    }
    int GetItemIndex() const override { return Widget() ? Face().currentRow() : -1; }
    void SetSelected(int Index, bool Selected) override
    {
        const TSilence Silence(*this);
        if (IsIndex(Index))
            Face().item(Index)->setSelected(Selected);
    }
    bool IsSelected(int Index) const override { return IsIndex(Index) && Face().item(Index)->isSelected(); }
    void SetTopIndex(int Index) override
    {
        if (IsIndex(Index))
            Face().scrollToItem(Face().item(Index), QAbstractItemView::PositionAtTop);
    }
    int GetTopIndex() const override
    {
        return Widget() ? std::max(0, Face().indexAt(QPoint(1, 1)).row()) : 0;
    }
    int ItemAt(TPoint Point) const override
    {
        if (!Widget())
            return -1;
        return Face().indexAt(Face().viewport()->mapFrom(Widget(), ToQt(Point))).row();
    }
    TRect ItemRect(int Index) const override
    {
        if (!IsIndex(Index))
            return {};
        const QRect Rect = Face().visualItemRect(Face().item(Index));
        return FromQt(Rect.translated(Face().viewport()->pos()));
    }
    void SetItemHeight(int Height) override
    {
        FItemHeight = Height;
        if (!Widget())
            return;
        for (int Index = 0; Index < Face().count(); ++Index)
            Face().item(Index)->setSizeHint(Height > 0 ? QSize(0, Height) : QSize());
    }
    void SetDroppedDown(bool) override {}
    bool IsDroppedDown() const override { return false; }
    void SetDropDownCount(int) override {}

    int FItemHeight = 0;
};

} // namespace

std::shared_ptr<TWindow> MakeListWindow(IWindowOwner& Owner, const TWindowStyle& Style, QWidget* Parent)
{
    return MakePeer<TListWindow>(Owner, Style, Parent);
}

} // namespace vcl::qt
