#pragma once

#include "vcl/system/Event.h"
#include "vcl/system/Types.h"

class TKSTreeNode;

// The events of a tree view. Sender is the view.
using TKSTVNodeNotifyEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTreeNode* Node)>;
using TKSTVDrawNodeEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTreeNode* Node, vcl::TRect NodeRect)>;
/// The Boolean is true before the call; false vetoes.
using TKSTVExpandingEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTreeNode* Node, bool& AllowExpansion)>;
using TKSTVCollapsingEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTreeNode* Node, bool& AllowCollapse)>;
using TKSTVChangingEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTreeNode* Node, bool& AllowChange)>;
using TKSTVEditingEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTreeNode* Node, bool& AllowEdit)>;
/// S is the new text, and may be changed.
using TKSTVEditedEvent = vcl::TEvent<void(vcl::TObject* Sender, TKSTreeNode* Node, vcl::AnsiString& S)>;
