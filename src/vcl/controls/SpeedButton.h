#pragma once

#include <memory>

#include "vcl/controls/Glyph.h"
#include "vcl/controls/PeerControl.h"

namespace vcl
{

/// A tool button: flat or raised, with a picture or a caption, never in the Tab order. Buttons with the same
/// GroupIndex above 0 in one parent stay down one at a time.
class TSpeedButton : public TPeerControl
{
    VCL_CLASS
public:
    explicit TSpeedButton(TComponent* Owner);

    /// Lets a click raise the button of a group that is down.
    bool GetAllowAllUp() const { return FAllowAllUp; }
    void SetAllowAllUp(bool Value) { FAllowAllUp = Value; }
    /// Only a button of a group can be down.
    bool GetDown() const { return FDown; }
    void SetDown(bool Value);
    bool GetFlat() const { return FFlat; }
    void SetFlat(bool Value);
    /// NumGlyphs pictures side by side; the bottom left pixel's colour is transparent.
    TBitmap* GetGlyph() const { return FGlyph.get(); }
    void SetGlyph(const TBitmap* Value) { FGlyph->Assign(Value); }
    int GetGroupIndex() const { return FGroupIndex; }
    void SetGroupIndex(int Value);
    /// 1..4; other values are clamped.
    int GetNumGlyphs() const { return FNumGlyphs; }
    void SetNumGlyphs(int Value);

protected:
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void CMDialogChar(TMessage& Message) override;

private:
    void Press();
    void RaiseOthers();

    std::unique_ptr<TBitmap> FGlyph;
    TGlyph FShownGlyph;
    int FGroupIndex = 0;
    int FNumGlyphs = 1;
    bool FAllowAllUp = false;
    bool FDown = false;
    bool FFlat = false;
};

} // namespace vcl
