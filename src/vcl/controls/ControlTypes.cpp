#include "vcl/controls/ControlTypes.h"

#include "vcl/platform/Messages.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TAlign>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TAlign", {"alNone", "alTop", "alBottom", "alLeft", "alRight", "alClient", "alCustom"});
    return Type;
}

const TTypeInfo& TypeTraits<TAnchorKind>::Info()
{
    static const TTypeInfo Type = EnumerationType("TAnchorKind", {"akLeft", "akTop", "akRight", "akBottom"});
    return Type;
}

const TTypeInfo& TypeTraits<TBorderStyle>::Info()
{
    static const TTypeInfo Type = EnumerationType("TBorderStyle", {"bsNone", "bsSingle"});
    return Type;
}

const TTypeInfo& TypeTraits<TBiDiMode>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TBiDiMode", {"bdLeftToRight", "bdRightToLeft", "bdRightToLeftNoAlign", "bdRightToLeftReadingOnly"});
    return Type;
}

const TTypeInfo& TypeTraits<TAlignment>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TAlignment", {"taLeftJustify", "taRightJustify", "taCenter"});
    return Type;
}

const TTypeInfo& TypeTraits<TDragMode>::Info()
{
    static const TTypeInfo Type = EnumerationType("TDragMode", {"dmManual", "dmAutomatic"});
    return Type;
}

const TTypeInfo& TypeTraits<TDragKind>::Info()
{
    static const TTypeInfo Type = EnumerationType("TDragKind", {"dkDrag", "dkDock"});
    return Type;
}

const TTypeInfo& TypeTraits<TImeMode>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TImeMode", {"imDisable", "imClose", "imOpen", "imDontCare", "imSAlpha", "imAlpha",
                                     "imHira", "imSKata", "imKata", "imChinese", "imSHanguel", "imHanguel"});
    return Type;
}

TShiftState KeyShiftStateOf(unsigned MouseKeys)
{
    TShiftState Shift;
    if (MouseKeys & MK_SHIFT)
        Shift.Include(TShiftKey::ssShift);
    if (MouseKeys & MK_ALT)
        Shift.Include(TShiftKey::ssAlt);
    if (MouseKeys & MK_CONTROL)
        Shift.Include(TShiftKey::ssCtrl);
    return Shift;
}

TShiftState ShiftStateOf(unsigned MouseKeys)
{
    TShiftState Shift = KeyShiftStateOf(MouseKeys);
    if (MouseKeys & MK_LBUTTON)
        Shift.Include(TShiftKey::ssLeft);
    if (MouseKeys & MK_RBUTTON)
        Shift.Include(TShiftKey::ssRight);
    if (MouseKeys & MK_MBUTTON)
        Shift.Include(TShiftKey::ssMiddle);
    return Shift;
}

} // namespace vcl
