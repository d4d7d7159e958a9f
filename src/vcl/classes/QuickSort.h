#pragma once

#include <cstddef>
#include <utility>
#include <vector>

namespace vcl
{

/// Sorts Items[First..Last] with the quicksort of the lists: the pivot stands in the middle of the range, so
/// the order of elements that compare equal is the same on every platform. It is not stable.
///
/// Compare gives a negative number, 0 or a positive one. One that contradicts itself gives some order and
/// never reaches outside the range. The smaller part is sorted first, which bounds the depth by the logarithm
/// of the length.
template <class TItem, class TCompare>
void QuickSort(std::vector<TItem>& Items, std::ptrdiff_t First, std::ptrdiff_t Last, TCompare& Compare)
{
    const auto At = [&Items](std::ptrdiff_t Index) -> TItem& {
        return Items[static_cast<std::size_t>(Index)];
    };
    while (First < Last) {
        std::ptrdiff_t Low = First;
        std::ptrdiff_t High = Last;
        const TItem Pivot = At(First + (Last - First) / 2);
        do {
            while (Low < Last && Compare(At(Low), Pivot) < 0)
                ++Low;
            while (High > First && Compare(At(High), Pivot) > 0)
                --High;
            if (Low <= High) {
                std::swap(At(Low), At(High));
                ++Low;
                --High;
            }
        } while (Low <= High);
        if (High - First < Last - Low) {
            QuickSort(Items, First, High, Compare);
            First = Low;
        } else {
            QuickSort(Items, Low, Last, Compare);
            Last = High;
        }
    }
}

} // namespace vcl
