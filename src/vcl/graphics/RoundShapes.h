#pragma once

#include "vcl/system/Types.h"

namespace vcl
{

/// One row of a rounded figure's pixels, right edges exclusive. The outline is Left .. InnerLeft - 1 and
/// InnerRight .. Right - 1; without an inside InnerLeft equals InnerRight.
struct TRoundRow {
    int Left = 0;
    int InnerLeft = 0;
    int InnerRight = 0;
    int Right = 0;
};

/// An ellipse, or a rectangle with the quarters of one at its corners, whose outline runs through the centres
/// of its box's border pixels. A pixel belongs to the outline when the curve crosses the diamond
/// |dx| + |dy| < 1/2 around its centre.
class TRoundShape
{
public:
    /// Corner: the size of the corners' ellipse; what exceeds the box is cut. An empty box has no rows.
    TRoundShape(const TRect& Box, TSize Corner);
    /// The ellipse that fills the box.
    explicit TRoundShape(const TRect& Box);

    const TRect& GetBox() const { return FBox; }
    /// Y from the box's top to its bottom - 1.
    TRoundRow Row(int Y) const;

private:
    bool IsCrossed(double X, double Y) const;
    double HalfWidthAt(double Y) const;

    TRect FBox;
    double FRadiusX;
    double FRadiusY;
};

/// How far the ends of an arc lie beyond the radii that give them, counter-clockwise and in pixels.
struct TArcShift {
    double Start = 0;
    double End = 0;
};

/// The part of the plane that a radius sweeps counter-clockwise from the direction of one point to that of
/// another; everything when both are the same.
class TSector
{
public:
    /// Turns around the centre of the box.
    TSector(const TRect& Box, TPoint From, TPoint To, const TArcShift& Shift);

    bool Contains(int X, int Y) const;
    /// Whether a point lies on the arc's side of the straight line between two points, its ends.
    bool IsCutOff(int X, int Y, TPoint ArcStart, TPoint ArcEnd) const;
    /// Where the box's ellipse meets the two radii.
    TPoint GetStart() const { return FStart; }
    TPoint GetEnd() const { return FEnd; }
    TPoint GetCentre() const { return FCentre; }
    bool IsEverything() const { return FEverything; }

private:
    struct TVector {
        double X;
        double Y;
    };
    static double Cross(TVector A, TVector B) { return A.X * B.Y - A.Y * B.X; }
    static TVector Turned(TVector Vector, double Angle);
    TVector Relative(TPoint Point) const;
    TPoint OnEllipse(TVector Direction, const TRect& Box) const;

    double FCentreX;
    double FCentreY;
    TVector FFrom{};
    TVector FTo{};
    TPoint FStart;
    TPoint FEnd;
    TPoint FCentre;
    bool FEverything = false;
};

} // namespace vcl
