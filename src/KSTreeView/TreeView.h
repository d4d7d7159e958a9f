#pragma once

#include "KSTreeView/CustomTreeView.h"

/// The tree view that forms hold: TCustomKSTreeView with its properties and events published.
class TKSTreeView : public TCustomKSTreeView
{
    VCL_CLASS
public:
    using TCustomKSTreeView::TCustomKSTreeView;
};
