#include "SampleTypes.h"

namespace vcl
{

using namespace tests;

const TTypeInfo& TypeTraits<TSampleAlign>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TSampleAlign", {"saNone", "saTop", "saBottom", "saLeft", "saRight", "saClient"});
    return Type;
}

const TTypeInfo& TypeTraits<TSampleAnchorKind>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TSampleAnchorKind", {"skLeft", "skTop", "skRight", "skBottom"});
    return Type;
}

const TTypeInfo& TypeTraits<TSampleAlignment>::Info()
{
    static const TTypeInfo Type = EnumerationType("TSampleAlignment", {"taLeft", "taRight", "taCenter"});
    return Type;
}

const TTypeInfo& TypeTraits<TSampleFontStyle>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TSampleFontStyle", {"fsBold", "fsItalic", "fsUnderline", "fsStrikeOut"});
    return Type;
}

const TTypeInfo& TypeTraits<TSampleOption>::Info()
{
    static const TTypeInfo Type =
        EnumerationType("TSampleOption", {"so00", "so01", "so02", "so03", "so04", "so05", "so06", "so07",
                                          "so08", "so09", "so10", "so11", "so12", "so13", "so14", "so15",
                                          "so16", "so17", "so18", "so19", "so20", "so21", "so22", "so23",
                                          "so24", "so25", "so26", "so27", "so28", "so29", "so30", "so31"});
    return Type;
}

const TTypeInfo& TypeTraits<TSampleColor>::Info()
{
    static const TTypeInfo Type = IntegerType("TSampleColor", INT32_MIN, INT32_MAX,
                                              {{"clBlack", 0},
                                               {"clMaroon", 128},
                                               {"clGreen", 32768},
                                               {"clOlive", 32896},
                                               {"clNavy", 8388608},
                                               {"clPurple", 8388736},
                                               {"clTeal", 8421376},
                                               {"clGray", 8421504},
                                               {"clSilver", 12632256},
                                               {"clRed", 255},
                                               {"clLime", 65280},
                                               {"clYellow", 65535},
                                               {"clBlue", 16711680},
                                               {"clFuchsia", 16711935},
                                               {"clAqua", 16776960},
                                               {"clWhite", 16777215},
                                               {"clNone", 536870911},
                                               {"clDefault", 536870912},
                                               {"clScrollBar", -2147483648LL},
                                               {"clWindow", -2147483643},
                                               {"clWindowText", -2147483640},
                                               {"clHighlight", -2147483635},
                                               {"clHighlightText", -2147483634},
                                               {"clBtnFace", -2147483633},
                                               {"clBtnText", -2147483630}});
    return Type;
}

const TTypeInfo& TypeTraits<TSampleCursor>::Info()
{
    static const TTypeInfo Type = IntegerType("TSampleCursor", INT16_MIN, INT16_MAX,
                                              {{"crDefault", 0},
                                               {"crNone", -1},
                                               {"crArrow", -2},
                                               {"crCross", -3},
                                               {"crIBeam", -4},
                                               {"crSizeNWSE", -8},
                                               {"crHourGlass", -11},
                                               {"crHSplit", -14},
                                               {"crAppStart", -20},
                                               {"crHandPoint", -21}});
    return Type;
}

} // namespace vcl
