#pragma once

// A tree view on a form on the platform without a screen.

#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "KSTreeView/KSTreeView.h"
#include "vcl/controls/Button.h"
#include "vcl/forms/Application.h"
#include "vcl/forms/Form.h"
#include "vcl/platform/VirtualKeys.h"
#include "vcl/platform/record/RecordPlatform.h"

/// Opens what a test needs to see.
class TProbeTree : public TKSTreeView
{
public:
    using TKSTreeView::TKSTreeView;
    void Paint() override
    {
        ++Paintings;
        TKSTreeView::Paint();
    }
    TKSTreeNode* CreateNode() override
    {
        ++Created;
        return TKSTreeView::CreateNode();
    }
    int Paintings = 0;
    int Created = 0;
};

class TTreeViewTest : public testing::Test
{
protected:
    explicit TTreeViewTest(int Width = 300, int Height = 200)
    {
        vcl::SetPlatform(&Platform);
        Form = vcl::New<vcl::TForm>(nullptr);
        Form->SetClientSize({500, 400});
        vcl::Application().OnException = [this](vcl::TObject*, const std::exception& Error) {
            Errors.push_back(Error.what());
        };
        Other = vcl::New<vcl::TButton>(Form);
        Other->SetBounds(0, 350, 50, 20);
        Other->SetParent(Form);
        Tree = vcl::New<TProbeTree>(Form);
        Tree->SetBorderStyle(vcl::TBorderStyle::bsNone);
        Tree->SetBounds(10, 10, Width, Height);
        Tree->SetParent(Form);
    }
    ~TTreeViewTest() override
    {
        delete Form;
        vcl::Application().OnException = nullptr;
        vcl::Application().Detach();
        vcl::SetPlatform(nullptr);
        EXPECT_THAT(Errors, testing::IsEmpty());
    }

    /// Fills the tree with lines indented by blanks and shows the form, the button having the focus.
    void Show(const std::string& Lines)
    {
        vcl::TMemoryStream Stream;
        Stream.WriteBuffer(Lines.data(), static_cast<std::int64_t>(Lines.size()));
        Stream.SetPosition(0);
        Tree->LoadFromStream(Stream);
        Form->Show();
        Other->SetFocus();
        Platform.Windows().ProcessMessages();
        Log.clear();
    }
    TKSTreeNode* Node(const std::string& Text)
    {
        for (TKSTreeNode* At = Tree->GetItems()->GetFirstNode(); At; At = At->GetNext())
            if (At->GetText() == Text)
                return At;
        return nullptr;
    }
    static vcl::TPoint Middle(const vcl::TRect& Rect)
    {
        return {(Rect.Left + Rect.Right) / 2, (Rect.Top + Rect.Bottom) / 2};
    }
    vcl::TPoint At(const std::string& Text) { return Middle(Node(Text)->GetRect()); }
    vcl::record::TWindow& WindowOf(vcl::TWinControl& Control)
    {
        return *static_cast<vcl::record::TWindow*>(Control.GetHandle());
    }
    vcl::record::TWindowSystem& Windows() { return Platform.Windows(); }
    void Click(vcl::TPoint Point) { Windows().MouseClick(WindowOf(*Tree), Point); }
    void Click(const std::string& Text) { Click(At(Text)); }
    void Key(std::uint16_t Code, unsigned Modifiers = 0) { Windows().KeyPress(Code, Modifiers); }
    std::string Selected() { return Tree->GetSelected() ? Tree->GetSelected()->GetText() : ""; }
    /// Every event of the tree writes a line.
    void LogEvents()
    {
        const auto Note = [this](const char* What) {
            return [this, What](vcl::TObject*, TKSTreeNode* About) {
                Log.push_back(What + (" " + About->GetText()));
            };
        };
        const auto Ask = [this](const char* What) {
            return [this, What](vcl::TObject*, TKSTreeNode* About, bool& Allow) {
                EXPECT_TRUE(Allow);
                Log.push_back(What + (" " + About->GetText()));
                Allow = !Vetoes;
            };
        };
        Tree->OnDeletion = Note("deletion");
        Tree->OnExpanded = Note("expanded");
        Tree->OnCollapsed = Note("collapsed");
        Tree->OnChange = Note("change");
        Tree->OnExpanding = Ask("expanding");
        Tree->OnCollapsing = Ask("collapsing");
        Tree->OnChanging = Ask("changing");
        Tree->OnEditing = Ask("editing");
        Tree->OnEdited = [this](vcl::TObject*, TKSTreeNode* About, vcl::AnsiString& S) {
            Log.push_back("edited " + About->GetText() + " to " + S);
        };
    }

    vcl::record::TPlatform Platform;
    vcl::TForm* Form = nullptr;
    vcl::TButton* Other = nullptr;
    TProbeTree* Tree = nullptr;
    bool Vetoes = false;
    std::vector<std::string> Log;
    std::vector<std::string> Errors;
};
