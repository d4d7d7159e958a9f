#pragma once

#include "vcl/classes/Properties.h"
#include "vcl/system/Event.h"
#include "vcl/system/Set.h"
#include "vcl/system/Types.h"

namespace vcl
{

class TControl;
class TWinControl;
class TDragObject;
class TDragDockObject;

enum class TAlign { alNone, alTop, alBottom, alLeft, alRight, alClient, alCustom };
enum class TAnchorKind { akLeft, akTop, akRight, akBottom };
using TAnchors = TSet<TAnchorKind>;
enum class TBorderStyle { bsNone, bsSingle };
enum class TBiDiMode { bdLeftToRight, bdRightToLeft, bdRightToLeftNoAlign, bdRightToLeftReadingOnly };
enum class TAlignment { taLeftJustify, taRightJustify, taCenter };

enum class TMouseButton { mbLeft, mbRight, mbMiddle };
enum class TShiftKey { ssShift, ssAlt, ssCtrl, ssLeft, ssRight, ssMiddle, ssDouble };
using TShiftState = TSet<TShiftKey>;

enum class TDragMode { dmManual, dmAutomatic };
enum class TDragKind { dkDrag, dkDock };
enum class TDragState { dsDragEnter, dsDragLeave, dsDragMove };

/// Input method state; kept for form files, the platform decides itself.
enum class TImeMode {
    imDisable,
    imClose,
    imOpen,
    imDontCare,
    imSAlpha,
    imAlpha,
    imHira,
    imSKata,
    imKata,
    imChinese,
    imSHanguel,
    imHanguel,
};

/// What a control is, for life.
enum class TControlStyleFlag {
    csAcceptsControls,
    csCaptureMouse, // captures the mouse while a button is down on it
    csClickEvents,  // turns presses into Click
    csFramed,
    csSetCaption, // its caption follows its name until it gets another
    csOpaque,
    csDoubleClicks, // gets DblClick; otherwise a second press like the first
    csFixedWidth,   // does not scale
    csFixedHeight,
    csNoStdEvents, // raises no key, mouse and click events
    csDisplayDragImage,
    csMenuEvents,
};
using TControlStyle = TSet<TControlStyleFlag>;

/// What a control is doing.
enum class TControlStateFlag {
    csLButtonDown,
    csClicked,
    csReadingState,
    csAlignmentNeeded,
};
using TControlState = TSet<TControlStateFlag>;

using TMouseEvent = TEvent<void(TObject* Sender, TMouseButton Button, TShiftState Shift, int X, int Y)>;
using TMouseMoveEvent = TEvent<void(TObject* Sender, TShiftState Shift, int X, int Y)>;
/// MousePos is a screen point; WheelDelta 120 a notch, away from the user positive.
using TMouseWheelEvent =
    TEvent<void(TObject* Sender, TShiftState Shift, int WheelDelta, TPoint MousePos, bool& Handled)>;
using TMouseWheelUpDownEvent =
    TEvent<void(TObject* Sender, TShiftState Shift, TPoint MousePos, bool& Handled)>;
/// Key is a virtual key; 0 afterwards: consumed.
using TKeyEvent = TEvent<void(TObject* Sender, std::uint16_t& Key, TShiftState Shift)>;
/// Key is one code point; 0 afterwards: consumed.
using TKeyPressEvent = TEvent<void(TObject* Sender, char32_t& Key)>;
using TDragDropEvent = TEvent<void(TObject* Sender, TObject* Source, int X, int Y)>;
using TDragOverEvent =
    TEvent<void(TObject* Sender, TObject* Source, int X, int Y, TDragState State, bool& Accept)>;
using TStartDragEvent = TEvent<void(TObject* Sender, TDragObject*& DragObject)>;
/// Target is null when the drag was cancelled or refused.
using TEndDragEvent = TEvent<void(TObject* Sender, TObject* Target, int X, int Y)>;
using TCanResizeEvent = TEvent<void(TObject* Sender, int& NewWidth, int& NewHeight, bool& Resize)>;
using TConstrainedResizeEvent =
    TEvent<void(TObject* Sender, int& MinWidth, int& MinHeight, int& MaxWidth, int& MaxHeight)>;
using TDockDropEvent = TEvent<void(TObject* Sender, TDragDockObject* Source, int X, int Y)>;
using TDockOverEvent =
    TEvent<void(TObject* Sender, TDragDockObject* Source, int X, int Y, TDragState State, bool& Accept)>;
using TUnDockEvent = TEvent<void(TObject* Sender, TControl* Client, TWinControl* NewTarget, bool& Allow)>;
using TStartDockEvent = TEvent<void(TObject* Sender, TDragDockObject*& DragObject)>;
using TGetSiteInfoEvent =
    TEvent<void(TObject* Sender, TControl* DockClient, TRect& InfluenceRect, TPoint MousePos, bool& CanDock)>;

template <>
struct TypeTraits<TAlign> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TAnchorKind> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TAnchors";
};
template <>
struct TypeTraits<TBorderStyle> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TBiDiMode> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TAlignment> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TDragMode> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TDragKind> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TImeMode> {
    static const TTypeInfo& Info();
};

/// Shift state of the MK_... flags that mouse messages carry.
TShiftState ShiftStateOf(unsigned MouseKeys);
/// Shift, Alt and Ctrl alone, as key events get them.
TShiftState KeyShiftStateOf(unsigned MouseKeys);

} // namespace vcl
