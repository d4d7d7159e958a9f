#include "vcl/controls/ListItem.h"

#include "vcl/controls/ListView.h"

namespace vcl
{

const TClass& TListItem::StaticClass()
{
    static const TClass Class{"TListItem", &TObject::StaticClass()};
    return Class;
}

TListItem::TListItem(TListView* ListView) : FListView(ListView)
{
    FSubItems.OnChange = [this](TObject*) { FListView->ItemChanged(this); };
}

TListItem::~TListItem()
{
    FSubItems.OnChange = nullptr;
}

void TListItem::SetCaption(const AnsiString& Value)
{
    FCaption = Value;
    FListView->ItemChanged(this);
}

bool TListItem::GetChecked() const
{
    const int Index = GetIndex();
    return FListView->View() && Index >= 0 ? FListView->View()->IsChecked(Index) : FChecked;
}

void TListItem::SetChecked(bool Value)
{
    FChecked = Value;
    if (FListView->View())
        FListView->View()->SetChecked(GetIndex(), Value);
}

int TListItem::GetIndex() const
{
    return FListView->IndexOf(this);
}

bool TListItem::GetSelected() const
{
    const int Index = GetIndex();
    return FListView->View() && Index >= 0 ? FListView->View()->IsSelected(Index) : FSelected;
}

void TListItem::SetSelected(bool Value)
{
    FSelected = Value;
    if (FListView->View())
        FListView->View()->SetSelected(GetIndex(), Value);
}

void TListItem::Delete()
{
    const int Index = GetIndex();
    if (Index >= 0)
        FListView->Delete(Index);
}

std::vector<AnsiString> TListItem::Cells() const
{
    std::vector<AnsiString> Result{FCaption};
    for (int Index = 0; Index < FSubItems.GetCount(); ++Index)
        Result.push_back(FSubItems.GetString(Index));
    return Result;
}

} // namespace vcl
