#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "vcl/graphics/Painter.h"
#include "vcl/graphics/WideMath.h"

namespace vcl
{

/// A thin line to be walked along its longer side. Of each step along the major axis it takes one minor
/// coordinate, ceil(exact - 1/2), whichever way it runs.
struct TThinLine {
    /// Two points of the exact line; Major1 may lie before Major0 but not equal it.
    std::int64_t Major0 = 0;
    std::int64_t Minor0 = 0;
    std::int64_t Major1 = 0;
    std::int64_t Minor1 = 0;
    /// The steps to walk, ascending, the last one exclusive.
    std::int64_t From = 0;
    std::int64_t To = 0;

    /// The minor coordinate at a step.
    std::int64_t MinorAt(std::int64_t Major) const;
    /// Narrows From .. To to the steps inside a range of the major axis and, give or take Slack, of the minor
    /// axis. The steps that stay keep their pixels.
    void Clip(std::int64_t MajorLow, std::int64_t MajorHigh, std::int64_t MinorLow, std::int64_t MinorHigh,
              std::int64_t Slack);
    /// Calls Emit(From, To, Minor) for each run of steps with the same minor coordinate, ascending.
    template <class TEmit>
    void Walk(TEmit Emit) const;

private:
    struct TAscending;
    TAscending Ascending() const;
    std::int64_t FirstStepWhere(bool Reached, std::int64_t Minor) const;
};

/// The line turned so that its major coordinate grows.
struct TThinLine::TAscending {
    std::int64_t Major = 0;
    std::int64_t Minor = 0;
    std::int64_t Length = 0;
    std::int64_t Rise = 0;

    /// Twice the exact minor coordinate times Length, minus Length, relative to Minor.
    TWide Numerator(std::int64_t Step) const { return TWide{2} * (Step - Major) * Rise - Length; }
};

inline TThinLine::TAscending TThinLine::Ascending() const
{
    if (Major0 <= Major1)
        return {Major0, Minor0, Major1 - Major0, Minor1 - Minor0};
    return {Major1, Minor1, Major0 - Major1, Minor0 - Minor1};
}

template <class TEmit>
void TThinLine::Walk(TEmit Emit) const
{
    if (From >= To)
        return;
    const TAscending Line = Ascending();
    if (Line.Rise == 0) {
        Emit(From, To, Minor0);
        return;
    }
    std::int64_t Minor = MinorAt(From);
    // The distance of the exact line above the row's limit, in 1 / (2 Length): -2 Length < Error <= 0.
    const std::int64_t Period = 2 * Line.Length;
    auto Error = static_cast<std::int64_t>(Line.Numerator(From) - TWide{Minor - Line.Minor} * Period);
    std::int64_t RunStart = From;
    for (std::int64_t Step = From + 1; Step < To; ++Step) {
        Error += 2 * Line.Rise;
        if (Error > -Period && Error <= 0)
            continue;
        Emit(RunStart, Step, Minor);
        RunStart = Step;
        const int Change = Error > 0 ? 1 : -1;
        Minor += Change;
        Error -= Change * Period;
    }
    Emit(RunStart, To, Minor);
}

/// Cuts a figure's lines into the dashes and gaps of a pen style. The phase runs on from line to line.
class TDashes
{
public:
    explicit TDashes(TPenStyle Style);

    bool IsSolid() const { return FPattern.empty(); }
    /// Moves on by the length of a line along its major axis.
    void Advance(std::int64_t Length);
    /// Calls Emit(From, To, IsDash) for the pieces of steps From .. To - 1 of a line which starts at Start
    /// and runs forward or backward.
    template <class TEmit>
    void Split(std::int64_t Start, bool Forward, std::int64_t From, std::int64_t To, TEmit Emit) const;

private:
    struct TPiece {
        bool IsDash;
        std::int64_t Left; // steps until the next piece, this one included
    };
    TPiece PieceAt(std::int64_t Distance) const;

    std::span<const int> FPattern; // lengths of dash, gap, dash, gap ..
    std::int64_t FPeriod = 0;
    std::int64_t FPhase = 0;
};

template <class TEmit>
void TDashes::Split(std::int64_t Start, bool Forward, std::int64_t From, std::int64_t To, TEmit Emit) const
{
    if (IsSolid()) {
        Emit(From, To, true);
        return;
    }
    std::int64_t Done = Forward ? From - Start : Start - (To - 1);
    const std::int64_t End = Done + (To - From);
    while (Done < End) {
        const TPiece Piece = PieceAt(Done);
        const std::int64_t Stop = std::min(End, Done + Piece.Left);
        if (Forward)
            Emit(Start + Done, Start + Stop, Piece.IsDash);
        else
            Emit(Start - Stop + 1, Start - Done + 1, Piece.IsDash);
        Done = Stop;
    }
}

} // namespace vcl
