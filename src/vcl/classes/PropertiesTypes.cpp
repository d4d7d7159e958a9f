// The descriptions of the plain types, and the identifiers of colours and cursors.

#include <climits>

#include "vcl/classes/Properties.h"

namespace vcl
{

namespace
{

TTypeInfo OrdinalType(TTypeKind Kind, const char* Name, std::int64_t Min, std::int64_t Max)
{
    TTypeInfo Info = IntegerType(Name, Min, Max);
    Info.Kind = Kind;
    return Info;
}

TTypeInfo TextType(TTypeKind Kind, const char* Name)
{
    TTypeInfo Info;
    Info.Kind = Kind;
    Info.Name = Name;
    return Info;
}

} // namespace

const TTypeInfo& TypeTraits<int>::Info()
{
    static const TTypeInfo Type = IntegerType("Integer", INT_MIN, INT_MAX);
    return Type;
}

const TTypeInfo& TypeTraits<unsigned>::Info()
{
    static const TTypeInfo Type = IntegerType("Cardinal", 0, UINT_MAX);
    return Type;
}

const TTypeInfo& TypeTraits<std::int16_t>::Info()
{
    static const TTypeInfo Type = IntegerType("SmallInt", INT16_MIN, INT16_MAX);
    return Type;
}

const TTypeInfo& TypeTraits<std::uint16_t>::Info()
{
    static const TTypeInfo Type = IntegerType("Word", 0, UINT16_MAX);
    return Type;
}

const TTypeInfo& TypeTraits<std::int8_t>::Info()
{
    static const TTypeInfo Type = IntegerType("ShortInt", INT8_MIN, INT8_MAX);
    return Type;
}

const TTypeInfo& TypeTraits<std::uint8_t>::Info()
{
    static const TTypeInfo Type = IntegerType("Byte", 0, UINT8_MAX);
    return Type;
}

const TTypeInfo& TypeTraits<std::int64_t>::Info()
{
    static const TTypeInfo Type = OrdinalType(TTypeKind::Int64, "Int64", INT64_MIN, INT64_MAX);
    return Type;
}

const TTypeInfo& TypeTraits<char>::Info()
{
    static const TTypeInfo Type = OrdinalType(TTypeKind::Char, "Char", 0, 255);
    return Type;
}

const TTypeInfo& TypeTraits<char16_t>::Info()
{
    static const TTypeInfo Type = OrdinalType(TTypeKind::WideChar, "WideChar", 0, 0xFFFF);
    return Type;
}

const TTypeInfo& TypeTraits<bool>::Info()
{
    static const TTypeInfo Type = EnumerationType("Boolean", {"False", "True"});
    return Type;
}

const TTypeInfo& TypeTraits<float>::Info()
{
    static const TTypeInfo Type = FloatType("Single", TFloatKind::Single);
    return Type;
}

const TTypeInfo& TypeTraits<double>::Info()
{
    static const TTypeInfo Type = FloatType("Double", TFloatKind::Double);
    return Type;
}

const TTypeInfo& TypeTraits<TExtended>::Info()
{
    static const TTypeInfo Type = FloatType("Extended", TFloatKind::Extended);
    return Type;
}

const TTypeInfo& TypeTraits<TCurrency>::Info()
{
    static const TTypeInfo Type = FloatType("Currency", TFloatKind::Currency);
    return Type;
}

const TTypeInfo& TypeTraits<AnsiString>::Info()
{
    static const TTypeInfo Type = TextType(TTypeKind::String, "string");
    return Type;
}

const TTypeInfo& TypeTraits<WideString>::Info()
{
    static const TTypeInfo Type = TextType(TTypeKind::WideText, "WideString");
    return Type;
}

const TTypeInfo& DateType()
{
    static const TTypeInfo Type = FloatType("TDate", TFloatKind::Double);
    return Type;
}

const TTypeInfo& TimeType()
{
    static const TTypeInfo Type = FloatType("TTime", TFloatKind::Double);
    return Type;
}

const TTypeInfo& DateTimeType()
{
    static const TTypeInfo Type = FloatType("TDateTime", TFloatKind::Double);
    return Type;
}

const TTypeInfo& TypeTraits<TColor>::Info()
{
    static const TTypeInfo Type = IntegerType("TColor", INT32_MIN, INT32_MAX,
                                              {{"clBlack", clBlack},
                                               {"clMaroon", clMaroon},
                                               {"clGreen", clGreen},
                                               {"clOlive", clOlive},
                                               {"clNavy", clNavy},
                                               {"clPurple", clPurple},
                                               {"clTeal", clTeal},
                                               {"clGray", clGray},
                                               {"clSilver", clSilver},
                                               {"clRed", clRed},
                                               {"clLime", clLime},
                                               {"clYellow", clYellow},
                                               {"clBlue", clBlue},
                                               {"clFuchsia", clFuchsia},
                                               {"clAqua", clAqua},
                                               {"clWhite", clWhite},
                                               {"clNone", clNone},
                                               {"clDefault", clDefault},
                                               {"clScrollBar", clScrollBar},
                                               {"clBackground", clBackground},
                                               {"clActiveCaption", clActiveCaption},
                                               {"clInactiveCaption", clInactiveCaption},
                                               {"clMenu", clMenu},
                                               {"clWindow", clWindow},
                                               {"clWindowFrame", clWindowFrame},
                                               {"clMenuText", clMenuText},
                                               {"clWindowText", clWindowText},
                                               {"clCaptionText", clCaptionText},
                                               {"clActiveBorder", clActiveBorder},
                                               {"clInactiveBorder", clInactiveBorder},
                                               {"clAppWorkSpace", clAppWorkSpace},
                                               {"clHighlight", clHighlight},
                                               {"clHighlightText", clHighlightText},
                                               {"clBtnFace", clBtnFace},
                                               {"clBtnShadow", clBtnShadow},
                                               {"clGrayText", clGrayText},
                                               {"clBtnText", clBtnText},
                                               {"clInactiveCaptionText", clInactiveCaptionText},
                                               {"clBtnHighlight", clBtnHighlight},
                                               {"cl3DDkShadow", cl3DDkShadow},
                                               {"cl3DLight", cl3DLight},
                                               {"clInfoText", clInfoText},
                                               {"clInfoBk", clInfoBk}});
    return Type;
}

const TTypeInfo& TypeTraits<TCursor>::Info()
{
    static const TTypeInfo Type = IntegerType("TCursor", INT16_MIN, INT16_MAX,
                                              {{"crDefault", crDefault},
                                               {"crNone", crNone},
                                               {"crArrow", crArrow},
                                               {"crCross", crCross},
                                               {"crIBeam", crIBeam},
                                               {"crSize", crSize},
                                               {"crSizeNESW", crSizeNESW},
                                               {"crSizeNS", crSizeNS},
                                               {"crSizeNWSE", crSizeNWSE},
                                               {"crSizeWE", crSizeWE},
                                               {"crUpArrow", crUpArrow},
                                               {"crHourGlass", crHourGlass},
                                               {"crDrag", crDrag},
                                               {"crNoDrop", crNoDrop},
                                               {"crHSplit", crHSplit},
                                               {"crVSplit", crVSplit},
                                               {"crMultiDrag", crMultiDrag},
                                               {"crSQLWait", crSQLWait},
                                               {"crNo", crNo},
                                               {"crAppStart", crAppStart},
                                               {"crHelp", crHelp},
                                               {"crHandPoint", crHandPoint},
                                               {"crSizeAll", crSizeAll}});
    return Type;
}

} // namespace vcl
