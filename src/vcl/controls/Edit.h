#pragma once

#include "vcl/controls/PeerControl.h"

namespace vcl
{

/// One line of text to type: the base of TEdit and of the editors that controls open in place.
class TCustomEdit : public TPeerControl
{
    VCL_CLASS
public:
    explicit TCustomEdit(TComponent* Owner);

    /// True: gaining the focus with Tab selects all.
    bool GetAutoSelect() const { return FAutoSelect; }
    void SetAutoSelect(bool Value) { FAutoSelect = Value; }
    TBorderStyle GetBorderStyle() const { return FBorderStyle; }
    void SetBorderStyle(TBorderStyle Value);
    /// Code points that can be typed; 0: no limit.
    int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    /// The character shown for each one typed; 0: the text itself.
    char GetPasswordChar() const { return FPasswordChar; }
    void SetPasswordChar(char Value);
    bool GetReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value);

    /// The user has changed the text since the program set it.
    bool GetModified() const { return FModified; }
    void SetModified(bool Value);
    /// Selection in code points; without a window there is none.
    int GetSelStart() const;
    void SetSelStart(int Value);
    int GetSelLength() const;
    void SetSelLength(int Value);
    AnsiString GetSelText() const;
    /// Puts text in the place of the selection.
    void SetSelText(const AnsiString& Value);
    void SelectAll();
    void Clear() { SetText({}); }
    void ClearSelection() { SetSelText({}); }

    TNotifyEvent OnChange;

protected:
    void CreateParams(TCreateParams& Params) override;
    void ApplyState() override;
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void CMTextChanged(TMessage& Message) override;
    void DoEnter() override;
    /// The text has changed, by the user or by program.
    virtual void Change() { OnChange(this); }

    explicit TCustomEdit(TComponent* Owner, TWindowKind Kind);

private:
    int FMaxLength = 0;
    TBorderStyle FBorderStyle = TBorderStyle::bsSingle;
    char FPasswordChar = 0;
    bool FAutoSelect = true;
    bool FModified = false;
    bool FReadOnly = false;
};

/// The edit that forms hold.
class TEdit : public TCustomEdit
{
    VCL_CLASS
public:
    using TCustomEdit::TCustomEdit;
};

} // namespace vcl
