#include "gallery/States.h"

#include <algorithm>

namespace gallery
{

const std::vector<TState>& States()
{
    static const std::vector<TState> All = [] {
        std::vector<TState> Result = TimeViewStates();
        const std::vector<TState> Tree = TreeViewStates();
        Result.insert(Result.end(), Tree.begin(), Tree.end());
        return Result;
    }();
    return All;
}

std::vector<vcl::AnsiString> Pages()
{
    std::vector<vcl::AnsiString> Names;
    for (const TState& State : States())
        if (Names.empty() || Names.back() != State.Page)
            Names.emplace_back(State.Page);
    return Names;
}

std::vector<const TState*> StatesOf(std::string_view Page)
{
    std::vector<const TState*> Result;
    for (const TState& State : States())
        if (vcl::SameText(State.Page, Page))
            Result.push_back(&State);
    return Result;
}

const TState* FindState(std::string_view Page, std::string_view Name)
{
    const std::vector<const TState*> OnPage = StatesOf(Page);
    const auto Found = std::find_if(OnPage.begin(), OnPage.end(),
                                    [Name](const TState* State) { return vcl::SameText(State->Name, Name); });
    return Found == OnPage.end() ? nullptr : *Found;
}

} // namespace gallery
