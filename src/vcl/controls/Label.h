#pragma once

#include "vcl/controls/PeerControl.h"

namespace vcl
{

enum class TTextLayout { tlTop, tlCenter, tlBottom };
template <>
struct TypeTraits<TTextLayout> {
    static const TTypeInfo& Info();
};

/// A line or a block of text that names other controls.
class TLabel : public TPeerControl
{
    VCL_CLASS
public:
    explicit TLabel(TComponent* Owner);

    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value);
    /// The control that the access key of the caption gives the focus to.
    TWinControl* GetFocusControl() const { return FFocusControl; }
    void SetFocusControl(TWinControl* Value);
    /// Where the text stands in a label that is higher than it.
    TTextLayout GetLayout() const { return FLayout; }
    void SetLayout(TTextLayout Value) { Change(FLayout, Value); }
    /// True: "&" marks the access key instead of being shown.
    bool GetShowAccelChar() const { return FShowAccelChar; }
    void SetShowAccelChar(bool Value);
    bool GetTransparent() const { return FTransparent; }
    void SetTransparent(bool Value);
    bool GetWordWrap() const { return FWordWrap; }
    void SetWordWrap(bool Value);

    void WndProc(TMessage& Message) override;

protected:
    void ApplyState() override;
    void Notification(TComponent* Component, TOperation Operation) override;
    void AdjustSize() override;
    bool CanAutoSize(int& NewWidth, int& NewHeight) override;
    void CMDialogChar(TMessage& Message) override;

private:
    template <class T>
    void Change(T& Field, T Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        StateChanged();
    }
    void StateChanged();

    TWinControl* FFocusControl = nullptr;
    TAlignment FAlignment = TAlignment::taLeftJustify;
    TTextLayout FLayout = TTextLayout::tlTop;
    bool FShowAccelChar = true;
    bool FTransparent = false;
    bool FWordWrap = false;
};

/// The platform's way to say an alignment.
TTextAlign TextAlignOf(TAlignment Alignment);
/// True when Text marks Key (a code point, case ignored) as its access key with "&".
bool IsAccel(char32_t Key, const AnsiString& Text);

} // namespace vcl
