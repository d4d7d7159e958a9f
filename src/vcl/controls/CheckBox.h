#pragma once

#include "vcl/controls/PeerControl.h"

namespace vcl
{

enum class TCheckBoxState { cbUnchecked, cbChecked, cbGrayed };
template <>
struct TypeTraits<TCheckBoxState> {
    static const TTypeInfo& Info();
};

/// The alignments that have a side.
enum class TLeftRight { taLeftJustify, taRightJustify };
template <>
struct TypeTraits<TLeftRight> {
    static const TTypeInfo& Info();
};

/// A box to tick, with a caption.
class TCheckBox : public TPeerControl
{
    VCL_CLASS
public:
    explicit TCheckBox(TComponent* Owner);

    /// taLeftJustify: the box stands behind the caption.
    TLeftRight GetAlignment() const { return FAlignment; }
    void SetAlignment(TLeftRight Value);
    /// Lets a click choose the third, undecided state.
    bool GetAllowGrayed() const { return FAllowGrayed; }
    void SetAllowGrayed(bool Value);
    bool GetChecked() const { return FState == TCheckBoxState::cbChecked; }
    void SetChecked(bool Value) { SetState(Value ? TCheckBoxState::cbChecked : TCheckBoxState::cbUnchecked); }
    TCheckBoxState GetState() const { return FState; }
    /// A change is told with OnClick, whoever made it.
    void SetState(TCheckBoxState Value);
    /// What a click does: the next state, and OnClick.
    void Toggle();

protected:
    void CreateParams(TCreateParams& Params) override;
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void CMDialogChar(TMessage& Message) override;

private:
    TCheckBoxState FState = TCheckBoxState::cbUnchecked;
    TLeftRight FAlignment = TLeftRight::taRightJustify;
    bool FAllowGrayed = false;
};

} // namespace vcl
