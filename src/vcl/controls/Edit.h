#pragma once

#include "vcl/controls/PeerControl.h"

namespace vcl
{

enum class TEditCharCase { ecNormal, ecUpperCase, ecLowerCase };
template <>
struct TypeTraits<TEditCharCase> {
    static const TTypeInfo& Info();
};

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
    /// Capitals or small letters only, however the text comes in.
    TEditCharCase GetCharCase() const { return FCharCase; }
    void SetCharCase(TEditCharCase Value);
    /// False: the selection shows without the focus too.
    bool GetHideSelection() const { return FHideSelection; }
    void SetHideSelection(bool Value);
    /// Code points that can be typed; 0: no limit.
    int GetMaxLength() const { return FMaxLength; }
    void SetMaxLength(int Value);
    /// Kept for form files: text is never converted.
    bool GetOEMConvert() const { return FOEMConvert; }
    void SetOEMConvert(bool Value) { FOEMConvert = Value; }
    /// The character shown for each one typed; 0: the text itself.
    char GetPasswordChar() const { return FPasswordChar; }
    void SetPasswordChar(char Value);
    bool GetReadOnly() const { return FReadOnly; }
    void SetReadOnly(bool Value);

    void SetText(const AnsiString& Value) override;

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
    void DestroyWnd() override;
    /// The height stays as the form file gives it.
    bool CanAutoSize(int&, int&) override { return false; }
    void PeerNotice(TPeerNotice Notice, std::int64_t Index) override;
    void CMTextChanged(TMessage& Message) override;
    void DoEnter() override;
    void WMGetDlgCode(TMessage& Message) override;
    /// The text has changed, by the user or by program.
    virtual void Change() { OnChange(this); }

    explicit TCustomEdit(TComponent* Owner, TWindowKind Kind);

private:
    int FMaxLength = 0;
    int FKeptStart = 0; // the selection while the window is made anew
    int FKeptLength = 0;
    TEditCharCase FCharCase = TEditCharCase::ecNormal;
    TBorderStyle FBorderStyle = TBorderStyle::bsSingle;
    char FPasswordChar = 0;
    bool FAutoSelect = true;
    bool FHideSelection = true;
    bool FModified = false;
    bool FOEMConvert = false;
    bool FReadOnly = false;
};

/// UTF-8 text in capitals or small letters; bytes that are no UTF-8 stay.
AnsiString InCharCase(const AnsiString& Text, TEditCharCase Case);

/// The edit that forms hold.
class TEdit : public TCustomEdit
{
    VCL_CLASS
public:
    using TCustomEdit::TCustomEdit;
};

} // namespace vcl
