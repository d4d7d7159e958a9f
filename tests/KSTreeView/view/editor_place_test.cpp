#include "KSTreeView/view/EditingFixture.h"

namespace
{

class TreeEditorPlace : public TTreeEditingTest
{
protected:
    /// Of a text with the three wide letters' room behind it, in the view's font.
    int WidthOf(const std::string& Text)
    {
        return Platform.Text().TextWidth(Tree->GetFont()->GetSpec(), Text + "WWW");
    }
};

TEST_F(TreeEditorPlace, IsMeasuredInTheViewsFont)
{
    const int Small = WidthOf("A");
    Tree->GetFont()->SetSize(20);
    ASSERT_NE(WidthOf("A"), Small);
    Edit("A\nB\n", "A");
    EXPECT_EQ(Tree->GetEditor()->GetFont()->GetSize(), 20);
    EXPECT_EQ(Tree->GetEditor()->GetWidth(), WidthOf("A"));
    Tree->GetCanvas()->GetFont()->SetSize(30);
    Type("Bo");
    EXPECT_EQ(Tree->GetEditor()->GetWidth(), WidthOf("Bo")) << "whatever was drawn last";
}

TEST_F(TreeEditorPlace, HangsOverBothEdgesOfTheTextAlikeWithTheOddPixelAtTheRight)
{
    Edit("A\nB\n", "A");
    Tree->GetEditor()->SetText("123456");
    const vcl::TRect Text = Node("A")->DisplayRect(true);
    const int Overhang = WidthOf("123456") - Text.Width();
    ASSERT_GT(Overhang, 0);
    ASSERT_EQ(Overhang % 2, 1);
    EXPECT_EQ(Tree->GetEditor()->GetWidth(), Text.Width() + Overhang);
    EXPECT_EQ(Tree->GetEditor()->GetLeft(), Text.Left - Overhang / 2);
    EXPECT_EQ(Tree->GetEditor()->GetTop(), Text.Top);
    EXPECT_EQ(Tree->GetEditor()->GetHeight(), Text.Height());
}

} // namespace
