#include "KSTreeView/model/TreeTypes.h"

EKSTreeViewError::~EKSTreeViewError() = default;

namespace vcl
{

const TTypeInfo& TypeTraits<TKSTVNodeStyle>::Info()
{
    static const TTypeInfo Type = EnumerationType("TKSTVNodeStyle", {"nsSimple", "nsShadowed"});
    return Type;
}

const TTypeInfo& TypeTraits<TKSTVNodeImageSide>::Info()
{
    static const TTypeInfo Type = EnumerationType("TKSTVNodeImageSide", {"nisLeft", "nisRight"});
    return Type;
}

} // namespace vcl
