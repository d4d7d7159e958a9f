#include "vcl/controls/Edit.h"

#include "vcl/controls/CharacterCase.h"

namespace vcl
{

namespace
{

/// Bytes of Text that hold its first Count code points.
std::size_t BytesOf(const AnsiString& Text, int Count)
{
    std::size_t Index = 0;
    while (Index < Text.size() && Count > 0) {
        ++Index;
        while (Index < Text.size() && (static_cast<unsigned char>(Text[Index]) & 0xC0) == 0x80)
            ++Index;
        --Count;
    }
    return Index;
}

} // namespace

const TTypeInfo& TypeTraits<TEditCharCase>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TEditCharCase", {"ecNormal", "ecUpperCase", "ecLowerCase"});
    return Type;
}

const TClass& TCustomEdit::StaticClass()
{
    static const TClass Class = DefineClass<TCustomEdit, TPeerControl>(
        "TCustomEdit",
        {
            Declared(Published<&TCustomEdit::GetAutoSelect, &TCustomEdit::SetAutoSelect>("AutoSelect")
                         .Default(true)),
            Declared(Published<&TCustomEdit::GetBorderStyle, &TCustomEdit::SetBorderStyle>("BorderStyle")
                         .Default(TBorderStyle::bsSingle)),
            Declared(Published<&TCustomEdit::GetCharCase, &TCustomEdit::SetCharCase>("CharCase")
                         .Default(TEditCharCase::ecNormal)),
            Declared(
                Published<&TCustomEdit::GetHideSelection, &TCustomEdit::SetHideSelection>("HideSelection")
                    .Default(true)),
            Declared(Published<&TCustomEdit::GetOEMConvert, &TCustomEdit::SetOEMConvert>("OEMConvert")
                         .Default(false)),
            Declared(
                Published<&TCustomEdit::GetMaxLength, &TCustomEdit::SetMaxLength>("MaxLength").Default(0)),
            Declared(Published<&TCustomEdit::GetPasswordChar, &TCustomEdit::SetPasswordChar>("PasswordChar")
                         .Default(0)),
            Declared(
                Published<&TCustomEdit::GetReadOnly, &TCustomEdit::SetReadOnly>("ReadOnly").Default(false)),
            Declared(Published<&TCustomEdit::GetText, &TCustomEdit::SetText>("Text")),
            Declared(Published<&TCustomEdit::OnChange>("OnChange")),
        });
    return Class;
}

const TClass& TEdit::StaticClass()
{
    static const TClass Class = DefineClass<TEdit, TCustomEdit>(
        "TEdit",
        {
            Publish("Anchors"),      Publish("AutoSelect"),     Publish("AutoSize").Default(true),
            Publish("BiDiMode"),     Publish("BorderStyle"),    Publish("CharCase"),
            Publish("Color"),        Publish("Constraints"),    Publish("Ctl3D"),
            Publish("DragCursor"),   Publish("DragKind"),       Publish("DragMode"),
            Publish("Enabled"),      Publish("Font"),           Publish("HideSelection"),
            Publish("ImeMode"),      Publish("ImeName"),        Publish("MaxLength"),
            Publish("OEMConvert"),   Publish("ParentBiDiMode"), Publish("ParentColor").Default(false),
            Publish("ParentCtl3D"),  Publish("ParentFont"),     Publish("ParentShowHint"),
            Publish("PasswordChar"), Publish("PopupMenu"),      Publish("ReadOnly"),
            Publish("ShowHint"),     Publish("TabOrder"),       Publish("TabStop").Default(true),
            Publish("Text"),         Publish("Visible"),        Publish("OnChange"),
            Publish("OnClick"),      Publish("OnDblClick"),     Publish("OnDragDrop"),
            Publish("OnDragOver"),   Publish("OnEndDock"),      Publish("OnEndDrag"),
            Publish("OnEnter"),      Publish("OnExit"),         Publish("OnKeyDown"),
            Publish("OnKeyPress"),   Publish("OnKeyUp"),        Publish("OnMouseDown"),
            Publish("OnMouseMove"),  Publish("OnMouseUp"),      Publish("OnStartDock"),
            Publish("OnStartDrag"),
        });
    return Class;
}

TCustomEdit::TCustomEdit(TComponent* Owner) : TCustomEdit(Owner, TWindowKind::Edit)
{
}

TCustomEdit::TCustomEdit(TComponent* Owner, TWindowKind Kind) : TPeerControl(Owner, Kind, {121, 25})
{
    SetTabStop(true);
    SetParentColor(false);
    SetAutoSize(true);
}

void TCustomEdit::CreateParams(TCreateParams& Params)
{
    TPeerControl::CreateParams(Params);
    if (FBorderStyle == TBorderStyle::bsSingle) {
        if (GetCtl3D())
            Params.ExStyle |= WS_EX_CLIENTEDGE;
        else
            Params.Style |= WS_BORDER;
    }
    if (!FHideSelection)
        Params.Style |= ES_NOHIDESEL;
}

void TCustomEdit::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
}

void TCustomEdit::SetCharCase(TEditCharCase Value)
{
    if (FCharCase == Value)
        return;
    FCharCase = Value;
    SetText(GetText());
}

void TCustomEdit::SetHideSelection(bool Value)
{
    if (FHideSelection == Value)
        return;
    FHideSelection = Value;
    RecreateWnd();
}

AnsiString InCharCase(const AnsiString& Text, TEditCharCase Case)
{
    if (Case == TEditCharCase::ecNormal)
        return Text;
    AnsiString Result;
    for (std::size_t Index = 0; Index < Text.size();) {
        const std::size_t Start = Index;
        const char32_t Char = NextCodePoint(Text, Index);
        const char32_t Wanted =
            Case == TEditCharCase::ecUpperCase ? UpperCodePoint(Char) : LowerCodePoint(Char);
        if (Wanted == Char)
            Result.append(Text, Start, Index - Start); // as it came, valid or not
        else
            AppendCodePoint(Result, Wanted);
    }
    return Result;
}

void TCustomEdit::SetText(const AnsiString& Value)
{
    TPeerControl::SetText(InCharCase(Value, FCharCase));
}

void TCustomEdit::SetMaxLength(int Value)
{
    FMaxLength = Value < 0 ? 0 : Value;
    if (Peer())
        Peer()->Edit()->SetMaxLength(FMaxLength);
}

void TCustomEdit::SetPasswordChar(char Value)
{
    FPasswordChar = Value;
    if (Peer())
        Peer()->Edit()->SetPasswordChar(static_cast<unsigned char>(Value));
}

void TCustomEdit::SetReadOnly(bool Value)
{
    FReadOnly = Value;
    if (Peer())
        Peer()->Edit()->SetReadOnly(Value);
}

void TCustomEdit::SetModified(bool Value)
{
    FModified = Value;
    if (Peer())
        Peer()->Edit()->SetModified(Value);
}

int TCustomEdit::GetSelStart() const
{
    return Peer() ? Peer()->Edit()->GetSelStart() : 0;
}

void TCustomEdit::SetSelStart(int Value)
{
    if (Peer())
        Peer()->Edit()->SetSelection(Value, 0);
}

int TCustomEdit::GetSelLength() const
{
    return Peer() ? Peer()->Edit()->GetSelLength() : 0;
}

void TCustomEdit::SetSelLength(int Value)
{
    if (Peer())
        Peer()->Edit()->SetSelection(GetSelStart(), Value);
}

AnsiString TCustomEdit::GetSelText() const
{
    const AnsiString& Text = GetText();
    const std::size_t First = BytesOf(Text, GetSelStart());
    return Text.substr(First, BytesOf(Text, GetSelStart() + GetSelLength()) - First);
}

void TCustomEdit::SetSelText(const AnsiString& Value)
{
    if (Peer())
        Peer()->Edit()->ReplaceSelection(Value);
}

void TCustomEdit::SelectAll()
{
    if (Peer())
        Peer()->Edit()->SetSelection(0, static_cast<int>(GetText().size()));
}

void TCustomEdit::ApplyState()
{
    IEditPeer* const Edit = Peer()->Edit();
    Edit->SetMaxLength(FMaxLength);
    Edit->SetPasswordChar(static_cast<unsigned char>(FPasswordChar));
    Edit->SetReadOnly(FReadOnly);
    Edit->SetModified(FModified);
    Edit->SetSelection(FKeptStart, FKeptLength);
}

void TCustomEdit::DestroyWnd()
{
    FKeptStart = GetSelStart();
    FKeptLength = GetSelLength();
    TPeerControl::DestroyWnd();
}

void TCustomEdit::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    if (Notice != TPeerNotice::TextChanged || !Peer())
        return;
    FModified = true;
    const AnsiString Typed = Peer()->GetText();
    const AnsiString Wanted = InCharCase(Typed, FCharCase);
    if (Wanted != Typed) {
        const int Start = GetSelStart();
        Peer()->SetText(Wanted);
        Peer()->Edit()->SetSelection(Start, 0);
        Peer()->Edit()->SetModified(true);
    }
    TakeText(Wanted);
    Change();
}

void TCustomEdit::CMTextChanged(TMessage& Message)
{
    if (IsTakingText())
        return;
    FModified = false;
    TAliveGuard Guard(*this);
    TPeerControl::CMTextChanged(Message);
    if (Guard.IsAlive() && !Is(TComponentState::csLoading))
        Change();
}

void TCustomEdit::DoEnter()
{
    // A press puts the caret where it points.
    if (FAutoSelect && !FControlState.Contains(TControlStateFlag::csLButtonDown))
        SelectAll();
    TPeerControl::DoEnter();
}

void TCustomEdit::WMGetDlgCode(TMessage& Message)
{
    Message.Result = DLGC_WANTARROWS | DLGC_WANTCHARS;
}

} // namespace vcl
