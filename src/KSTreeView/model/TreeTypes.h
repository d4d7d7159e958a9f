#pragma once

#include <cstdint>

#include "vcl/classes/Properties.h"
#include "vcl/system/Exception.h"
#include "vcl/system/Set.h"
#include "vcl/system/Types.h"

/// What goes wrong in a tree: a bad index, a bad level in its text form.
class EKSTreeViewError : public vcl::Exception
{
public:
    using Exception::Exception;
    ~EKSTreeViewError() override;
    const char* ClassName() const noexcept override { return "EKSTreeViewError"; }
};

/// Only nsFocused, nsSelected, nsExpanded and nsEdited are ever set.
enum class TKSTNNodeState {
    nsCut,
    nsDropHilited,
    nsFocused,
    nsSelected,
    nsExpanded,
    nsEdited,
    nsHiddenSelected,
};
using TKSTNNodeStates = vcl::TSet<TKSTNNodeState>;

enum class TKSTNAddMode { taAddFirst, taAdd, taInsert };

/// The fixed part of a node's record in the binary stream.
struct TKSNodeInfo {
    std::int32_t ImageIndex = 0;
    std::int32_t Data = 0;
    std::int32_t IntData = 0;
    /// Direct children.
    std::int32_t Count = 0;
};

/// nsShadowed draws a black shadow right of and below boxes and buttons.
enum class TKSTVNodeStyle { nsSimple, nsShadowed };
/// The lower corner of the box that holds the image.
enum class TKSTVNodeImageSide { nisLeft, nisRight };

/// Only htOnItem and htOnButton are ever reported; a miss is the empty set.
enum class TKSTVHitTest {
    htAbove,
    htBelow,
    htNowhere,
    htOnItem,
    htOnButton,
    htOnIcon,
    htOnIndent,
    htOnLabel,
    htOnRight,
    htOnStateIcon,
    htToLeft,
    htToRight,
};
using TKSTVHitTests = vcl::TSet<TKSTVHitTest>;

namespace vcl
{

template <>
struct TypeTraits<TKSTVNodeStyle> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TKSTVNodeImageSide> {
    static const TTypeInfo& Info();
};

} // namespace vcl

namespace treeview
{

/// The properties of a view that decide where its boxes stand; pixels.
struct TChartMetrics {
    int NodeWidth = 60;
    int NodeHeight = 30;
    /// Between the subtrees of neighbours.
    int HorzSpacing = 20;
    /// Between rows.
    int VertSpacing = 20;
    /// Half the side of an expand button.
    int ButtonSize = 5;
    bool operator==(const TChartMetrics&) const = default;
};

/// The events of a tree, to ask which of them have handlers.
enum class TTreeEvent {
    GetImageIndex,
    DrawNode,
    Deletion,
    Expanding,
    Expanded,
    Collapsing,
    Collapsed,
    Changing,
    Change,
};
using TTreeEvents = vcl::TSet<TTreeEvent>;

} // namespace treeview
