#pragma once

#include "vcl/controls/ControlTypes.h"

namespace vcl
{

enum class TFormBorderStyle { bsNone, bsSingle, bsSizeable, bsDialog, bsToolWindow, bsSizeToolWin };
enum class TBorderIcon { biSystemMenu, biMinimize, biMaximize, biHelp };
using TBorderIcons = TSet<TBorderIcon>;
enum class TFormStyle { fsNormal, fsMDIChild, fsMDIForm, fsStayOnTop };
enum class TWindowState { wsNormal, wsMinimized, wsMaximized };
enum class TPosition {
    poDesigned,
    poDefault,
    poDefaultPosOnly,
    poDefaultSizeOnly,
    poScreenCenter,
    poDesktopCenter,
    poMainFormCenter,
    poOwnerFormCenter,
};
enum class TCloseAction { caNone, caHide, caFree, caMinimize };

/// What ShowModal returns: the number of the button that closed the form; 0 while it is open.
using TModalResult = int;
constexpr TModalResult mrNone = 0;
constexpr TModalResult mrOk = 1;
constexpr TModalResult mrCancel = 2;
constexpr TModalResult mrAbort = 3;
constexpr TModalResult mrRetry = 4;
constexpr TModalResult mrIgnore = 5;
constexpr TModalResult mrYes = 6;
constexpr TModalResult mrNo = 7;

using TCloseEvent = TEvent<void(TObject* Sender, TCloseAction& Action)>;
using TCloseQueryEvent = TEvent<void(TObject* Sender, bool& CanClose)>;

template <>
struct TypeTraits<TFormBorderStyle> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TBorderIcon> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TBorderIcons";
};
template <>
struct TypeTraits<TFormStyle> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TWindowState> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<TPosition> {
    static const TTypeInfo& Info();
};

} // namespace vcl
