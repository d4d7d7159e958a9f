#pragma once

// A tree view with a node in the editor.

#include "KSTreeView/view/TreeViewFixture.h"

class TTreeEditingTest : public TTreeViewTest
{
protected:
    using TTreeViewTest::TTreeViewTest;
    /// Shows the lines and opens the editor over the node, which is selected before.
    void Edit(const std::string& Lines, const std::string& Text)
    {
        Show(Lines);
        Tree->SetFocus();
        Tree->SelectNode(Node(Text));
        LogEvents();
        Node(Text)->EditText();
        Windows().ProcessMessages();
    }
    /// As a person does: everything is selected, so typing replaces it.
    void Type(const std::string& Text) { Windows().Type(Text); }
};
