// The property table that every control shares. Rows that are only declared are published by descendants.

#include "vcl/controls/Control.h"

namespace vcl
{

const TClass& TControl::StaticClass()
{
    using T = TControl;
    static const TClass Class = DefineClass<TControl, TComponent>(
        "TControl",
        {
            Published<&T::GetLeft, &T::SetLeft>("Left"),
            Published<&T::GetTop, &T::SetTop>("Top"),
            Published<&T::GetWidth, &T::SetWidth>("Width"),
            Published<&T::GetHeight, &T::SetHeight>("Height"),
            Published<&T::GetCursor, &T::SetCursor>("Cursor").Default(crDefault),
            Published<&T::GetHint, &T::SetHint>("Hint"),
            Published<&T::GetHelpContext, &T::SetHelpContext>("HelpContext").Default(0),
            Declared(Published<&T::GetAlign, &T::SetAlign>("Align").Default(TAlign::alNone)),
            Declared(Published<&T::GetAnchors, &T::SetAnchors>("Anchors")
                         .Default(TAnchors{TAnchorKind::akLeft, TAnchorKind::akTop})
                         .Stored<&T::IsAnchorsStored>()),
            Declared(Published<&T::GetAutoSize, &T::SetAutoSize>("AutoSize").Default(false)),
            Declared(Published<&T::GetBiDiMode, &T::SetBiDiMode>("BiDiMode").Stored<&T::IsBiDiModeStored>()),
            Declared(Published<&T::GetCaption, &T::SetCaption>("Caption")),
            Declared(Published<&T::GetText, &T::SetText>("Text")),
            Declared(
                Published<&T::GetColor, &T::SetColor>("Color").Default(clWindow).Stored<&T::IsColorStored>()),
            Declared(Published<&T::GetConstraints, &T::SetConstraints>("Constraints")),
            Declared(Published<&T::GetDragCursor, &T::SetDragCursor>("DragCursor").Default(crDrag)),
            Declared(Published<&T::GetDragKind, &T::SetDragKind>("DragKind").Default(TDragKind::dkDrag)),
            Declared(Published<&T::GetDragMode, &T::SetDragMode>("DragMode").Default(TDragMode::dmManual)),
            Declared(Published<&T::GetEnabled, &T::SetEnabled>("Enabled").Default(true)),
            Declared(Published<&T::GetFont, &T::SetFont>("Font").Stored<&T::IsFontStored>()),
            Declared(Published<&T::GetParentBiDiMode, &T::SetParentBiDiMode>("ParentBiDiMode").Default(true)),
            Declared(Published<&T::GetParentColor, &T::SetParentColor>("ParentColor").Default(true)),
            Declared(Published<&T::GetParentFont, &T::SetParentFont>("ParentFont").Default(true)),
            Declared(Published<&T::GetParentShowHint, &T::SetParentShowHint>("ParentShowHint").Default(true)),
            Declared(Published<&T::GetPopupMenu, &T::SetPopupMenu>("PopupMenu")),
            Declared(Published<&T::GetShowHint, &T::SetShowHint>("ShowHint").Stored<&T::IsShowHintStored>()),
            Declared(Published<&T::GetVisible, &T::SetVisible>("Visible").Default(true)),
            Declared(Published<&T::OnCanResize>("OnCanResize")),
            Declared(Published<&T::OnClick>("OnClick")),
            Declared(Published<&T::OnConstrainedResize>("OnConstrainedResize")),
            Declared(Published<&T::OnDblClick>("OnDblClick")),
            Declared(Published<&T::OnDragDrop>("OnDragDrop")),
            Declared(Published<&T::OnDragOver>("OnDragOver")),
            Declared(Published<&T::OnEndDock>("OnEndDock")),
            Declared(Published<&T::OnEndDrag>("OnEndDrag")),
            Declared(Published<&T::OnMouseDown>("OnMouseDown")),
            Declared(Published<&T::OnMouseMove>("OnMouseMove")),
            Declared(Published<&T::OnMouseUp>("OnMouseUp")),
            Declared(Published<&T::OnMouseWheel>("OnMouseWheel")),
            Declared(Published<&T::OnMouseWheelDown>("OnMouseWheelDown")),
            Declared(Published<&T::OnMouseWheelUp>("OnMouseWheelUp")),
            Declared(Published<&T::OnResize>("OnResize")),
            Declared(Published<&T::OnStartDock>("OnStartDock")),
            Declared(Published<&T::OnStartDrag>("OnStartDrag")),
        });
    return Class;
}

} // namespace vcl
