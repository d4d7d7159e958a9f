#pragma once

// Everything of the chart tree.

#include "KSTreeView/CustomTreeView.h"
#include "KSTreeView/TreeEdit.h"
#include "KSTreeView/TreeScrollBar.h"
#include "KSTreeView/TreeView.h"
#include "KSTreeView/TreeViewEvents.h"
#include "KSTreeView/model/TreeNode.h"
#include "KSTreeView/model/TreeNodes.h"
#include "KSTreeView/model/TreeStrings.h"
#include "KSTreeView/model/TreeTypes.h"
