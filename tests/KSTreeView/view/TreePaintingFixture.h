#pragma once

// What a tree view paints, written down.

#include <sstream>

#include "KSTreeView/view/TreeViewFixture.h"
#include "vcl/graphics/Bitmap.h"
#include "vcl/graphics/ImageList.h"
#include "vcl/graphics/RecordingPainter.h"

class TTreePaintingTest : public TTreeViewTest
{
protected:
    using TTreeViewTest::TTreeViewTest;

    /// What a whole painting does, one operation a line.
    std::string Painted()
    {
        vcl::TRecordingPainter Painter(Tree->GetClientRect());
        vcl::TCanvas Canvas(&Painter);
        Tree->PaintTo(Canvas, 0, 0);
        return Painter.GetText();
    }
    /// What Action draws on the window's canvas.
    template <class TAction>
    std::string DrawnBy(TAction&& Action)
    {
        vcl::TRecordingPainter Painter(Tree->GetClientRect());
        vcl::IPainter* const Before = Tree->GetCanvas()->GetPainter();
        Tree->GetCanvas()->SetPainter(&Painter);
        Action();
        Tree->GetCanvas()->SetPainter(Before);
        return Painter.GetText();
    }
    static std::vector<std::string> LinesOf(const std::string& Text)
    {
        std::vector<std::string> Lines;
        std::istringstream Stream(Text);
        for (std::string Line; std::getline(Stream, Line);)
            Lines.push_back(Line);
        return Lines;
    }
    /// The operations of a whole painting that hold Word.
    std::vector<std::string> LinesWith(const std::string& Word)
    {
        std::vector<std::string> Lines = LinesOf(Painted());
        std::erase_if(Lines, [&](const std::string& Line) { return Line.find(Word) == std::string::npos; });
        return Lines;
    }
    /// How often the view paints meanwhile.
    template <class TAction>
    int PaintingsOf(TAction&& Action)
    {
        const int Before = Tree->Paintings;
        Action();
        return Tree->Paintings - Before;
    }
    /// What the window shows, row by row.
    std::vector<vcl::TColor> Pixels()
    {
        std::vector<vcl::TColor> Result;
        for (int Y = 0; Y < Tree->GetClientHeight(); ++Y)
            for (int X = 0; X < Tree->GetClientWidth(); ++X)
                Result.push_back(Tree->GetCanvas()->GetPixel(X, Y));
        return Result;
    }
    /// A list of one picture, owned by the form.
    vcl::TImageList* NewImages(int Width, int Height)
    {
        auto* const Images = vcl::New<vcl::TImageList>(Form);
        Images->SetSize(Width, Height);
        vcl::TBitmap Picture(Width, Height);
        Picture.GetCanvas()->GetBrush()->SetColor(vcl::clNavy);
        Picture.GetCanvas()->FillRect({0, 0, Width, Height});
        Images->Add(&Picture, nullptr);
        return Images;
    }
};
