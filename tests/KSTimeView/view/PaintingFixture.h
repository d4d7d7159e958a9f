#pragma once

// What painting a time view did, searched line by line.

#include <algorithm>
#include <string>
#include <vector>

#include "KSTimeView/view/ViewFixture.h"

class TTimeViewPaintingTest : public TTimeViewTest
{
protected:
    using TLines = std::vector<std::string>;

    /// Lines is in All, one after the other without others between.
    static testing::AssertionResult HasRun(const TLines& All, const TLines& Lines)
    {
        if (std::search(All.begin(), All.end(), Lines.begin(), Lines.end()) != All.end())
            return testing::AssertionSuccess();
        auto Result = testing::AssertionFailure() << "not painted in this order:";
        for (const std::string& Line : All)
            Result << '\n' << Line;
        return Result;
    }

    /// The lines that start with Start and contain Part.
    static TLines Matching(const TLines& All, const std::string& Start, const std::string& Part = "")
    {
        TLines Result;
        for (const std::string& Line : All)
            if (Line.starts_with(Start) && Line.find(Part) != std::string::npos)
                Result.push_back(Line);
        return Result;
    }

    /// Everything painted, as one text.
    std::string AllText()
    {
        std::string Text;
        for (const std::string& Line : Painting())
            Text += Line + '\n';
        return Text;
    }

    /// No ruler, no lines: what remains are the days.
    void ShowDaysOnly(int Width = 200, int Height = 400)
    {
        View().SetShowRuler(false);
        View().SetShowTimeLines(false);
        Show(Width, Height);
    }
};
