#pragma once

#include <algorithm>
#include <memory>

#include "vcl/controls/Glyph.h"
#include "vcl/controls/PeerControl.h"

namespace vcl
{

/// Where the picture stands beside the caption.
enum class TButtonLayout { blGlyphLeft, blGlyphRight, blGlyphTop, blGlyphBottom };
template <>
struct TypeTraits<TButtonLayout> {
    static const TTypeInfo& Info();
};

/// A tool button: flat or raised, with a picture or a caption, never in the Tab order. Buttons with the same
/// GroupIndex above 0 in one parent stay down one at a time.
class TSpeedButton : public TPeerControl
{
    VCL_CLASS
public:
    explicit TSpeedButton(TComponent* Owner);

    /// Lets a click raise the button of a group that is down.
    bool GetAllowAllUp() const { return FAllowAllUp; }
    void SetAllowAllUp(bool Value);
    /// Only a button of a group can be down. While the form is read the group may follow later.
    bool GetDown() const { return FDown; }
    void SetDown(bool Value);
    bool GetFlat() const { return FFlat; }
    void SetFlat(bool Value);
    /// NumGlyphs pictures side by side: up, disabled, pressed, down. The bottom left pixel's colour is
    /// transparent. A picture that is a row of squares sets NumGlyphs when it is assigned.
    TBitmap* GetGlyph() const { return FGlyph.get(); }
    void SetGlyph(const TBitmap* Value);
    int GetGroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int Value);
    TButtonLayout GetLayout() const { return FLayout; }
    void SetLayout(TButtonLayout Value) { FLayout = Value; }
    /// Pixels between the edge and the picture, -1: picture and caption in the middle. Kept for form files,
    /// as are Layout and Spacing: the platform arranges its buttons.
    int GetMargin() const { return FMargin; }
    void SetMargin(int Value) { FMargin = std::max(Value, -1); }
    /// 1..4; other values are clamped.
    int GetNumGlyphs() const { return FNumGlyphs; }
    void SetNumGlyphs(int Value);
    /// Pixels between picture and caption.
    int GetSpacing() const { return FSpacing; }
    void SetSpacing(int Value) { FSpacing = Value; }
    bool GetTransparent() const { return FTransparent; }
    void SetTransparent(bool Value) { FTransparent = Value; }

protected:
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void Loaded() override;
    void CMDialogChar(TMessage& Message) override;
    void CMEnabledChanged(TMessage& Message) override;

private:
    void Press();
    void UpdateGroup();
    void ShowDown();
    void ShowGlyph();

    std::unique_ptr<TBitmap> FGlyph;
    int FGroupIndex = 0;
    int FMargin = -1;
    int FNumGlyphs = 1;
    int FSpacing = 4;
    TButtonLayout FLayout = TButtonLayout::blGlyphLeft;
    bool FAllowAllUp = false;
    bool FDown = false;
    bool FFlat = false;
    bool FTransparent = true;
};

} // namespace vcl
