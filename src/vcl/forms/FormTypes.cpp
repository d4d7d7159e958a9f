#include "vcl/forms/FormTypes.h"

namespace vcl
{

const TTypeInfo& TypeTraits<TFormBorderStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TFormBorderStyle",
                        {"bsNone", "bsSingle", "bsSizeable", "bsDialog", "bsToolWindow", "bsSizeToolWin"});
    return Type;
}

const TTypeInfo& TypeTraits<TBorderIcon>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TBorderIcon", {"biSystemMenu", "biMinimize", "biMaximize", "biHelp"});
    return Type;
}

const TTypeInfo& TypeTraits<TFormStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TFormStyle", {"fsNormal", "fsMDIChild", "fsMDIForm", "fsStayOnTop"});
    return Type;
}

const TTypeInfo& TypeTraits<TWindowState>::Info()
{
    static const TTypeInfo Type = EnumerationType("TWindowState", {"wsNormal", "wsMinimized", "wsMaximized"});
    return Type;
}

const TTypeInfo& TypeTraits<TPosition>::Info()
{
    static const TTypeInfo Type = EnumerationType(
        "TPosition", {"poDesigned", "poDefault", "poDefaultPosOnly", "poDefaultSizeOnly", "poScreenCenter",
                      "poDesktopCenter", "poMainFormCenter", "poOwnerFormCenter"});
    return Type;
}

} // namespace vcl
