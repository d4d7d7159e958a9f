#include "vcl/controls/Edit.h"

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

const TClass& TCustomEdit::StaticClass()
{
    static const TClass Class = DefineClass<TCustomEdit, TPeerControl>(
        "TCustomEdit",
        {
            Declared(Published<&TCustomEdit::GetAutoSelect, &TCustomEdit::SetAutoSelect>("AutoSelect")
                         .Default(true)),
            Declared(Published<&TCustomEdit::GetBorderStyle, &TCustomEdit::SetBorderStyle>("BorderStyle")
                         .Default(TBorderStyle::bsSingle)),
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
    static const TClass Class =
        DefineClass<TEdit, TCustomEdit>("TEdit", {
                                                     Publish("Anchors"),
                                                     Publish("AutoSelect"),
                                                     Publish("BiDiMode"),
                                                     Publish("BorderStyle"),
                                                     Publish("Color"),
                                                     Publish("Constraints"),
                                                     Publish("Ctl3D"),
                                                     Publish("Enabled"),
                                                     Publish("Font"),
                                                     Publish("ImeMode"),
                                                     Publish("ImeName"),
                                                     Publish("MaxLength"),
                                                     Publish("ParentBiDiMode"),
                                                     Publish("ParentColor").Default(false),
                                                     Publish("ParentCtl3D"),
                                                     Publish("ParentFont"),
                                                     Publish("ParentShowHint"),
                                                     Publish("PasswordChar"),
                                                     Publish("PopupMenu"),
                                                     Publish("ReadOnly"),
                                                     Publish("ShowHint"),
                                                     Publish("TabOrder"),
                                                     Publish("TabStop").Default(true),
                                                     Publish("Text"),
                                                     Publish("Visible"),
                                                     Publish("OnChange"),
                                                     Publish("OnClick"),
                                                     Publish("OnDblClick"),
                                                     Publish("OnEnter"),
                                                     Publish("OnExit"),
                                                     Publish("OnKeyDown"),
                                                     Publish("OnKeyPress"),
                                                     Publish("OnKeyUp"),
                                                     Publish("OnMouseDown"),
                                                     Publish("OnMouseMove"),
                                                     Publish("OnMouseUp"),
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
}

void TCustomEdit::SetBorderStyle(TBorderStyle Value)
{
    if (FBorderStyle == Value)
        return;
    FBorderStyle = Value;
    RecreateWnd();
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
}

void TCustomEdit::PeerNotice(TPeerNotice Notice, std::int64_t)
{
    if (Notice != TPeerNotice::TextChanged || !Peer())
        return;
    FModified = true;
    TakeText(Peer()->GetText());
}

void TCustomEdit::CMTextChanged(TMessage& Message)
{
    if (!IsTakingText())
        FModified = false;
    TPeerControl::CMTextChanged(Message);
    if (!Is(TComponentState::csLoading))
        Change();
}

void TCustomEdit::DoEnter()
{
    if (FAutoSelect)
        SelectAll();
    TPeerControl::DoEnter();
}

} // namespace vcl
