// The focus and the order in which Tab walks.

#include <algorithm>

#include "vcl/controls/WinControl.h"

namespace vcl
{

bool TWinControl::CanFocus() const
{
    for (const TControl* Control = this; Control; Control = Control->GetParent())
        if (!Control->GetVisible() || !Control->GetEnabled())
            return false;
    return true;
}

bool TWinControl::Focused() const
{
    return FHandle && FWindow->HasFocus();
}

void TWinControl::SetFocus()
{
    IFormSite* const Site = GetFormSiteOf(this);
    if (Site && &Site->SiteControl() != this)
        Site->FocusControl(this);
    else
        GetHandle()->SetFocus();
}

void TWinControl::RemoveFocus(bool Removing)
{
    if (IFormSite* const Site = GetFormSiteOf(this))
        Site->DefocusControl(this, Removing);
}

void TWinControl::GetTabOrderList(std::vector<TWinControl*>& List) const
{
    for (TWinControl* Child : FTabList) {
        List.push_back(Child);
        Child->GetTabOrderList(List);
    }
}

TWinControl* TWinControl::FindNextControl(TWinControl* Current, bool GoForward, bool CheckTabStop,
                                          bool CheckParent) const
{
    std::vector<TWinControl*> List;
    GetTabOrderList(List);
    if (List.empty())
        return nullptr;
    const std::size_t Count = List.size();
    const auto Found = std::find(List.begin(), List.end(), Current);
    std::size_t Place = static_cast<std::size_t>(Found - List.begin());
    if (Found == List.end())
        Place = GoForward ? Count - 1 : 0;
    for (std::size_t Step = 0; Step < Count; ++Step) {
        Place = (Place + (GoForward ? 1 : Count - 1)) % Count;
        TWinControl* const Candidate = List[Place];
        if (Candidate->CanFocus() && (!CheckTabStop || Candidate->GetTabStop()) &&
            (!CheckParent || Candidate->GetParent() == this))
            return Candidate;
    }
    return nullptr;
}

void TWinControl::SelectNext(TWinControl* Current, bool GoForward, bool CheckTabStop)
{
    if (TWinControl* const Next = FindNextControl(Current, GoForward, CheckTabStop, !CheckTabStop))
        Next->SetFocus();
}

void TWinControl::SelectFirst()
{
    TWinControl* First = FindNextControl(nullptr, true, true, false);
    if (!First)
        First = FindNextControl(nullptr, true, false, false);
    if (First)
        First->SetFocus();
}

} // namespace vcl
