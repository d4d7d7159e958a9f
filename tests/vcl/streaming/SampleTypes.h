#pragma once

#include "vcl/classes/Properties.h"

namespace vcl::tests
{

enum class TSampleAlign { saNone, saTop, saBottom, saLeft, saRight, saClient };
enum class TSampleAnchorKind { skLeft, skTop, skRight, skBottom };
enum class TSampleAlignment { taLeft, taRight, taCenter };
enum class TSampleFontStyle { fsBold, fsItalic, fsUnderline, fsStrikeOut };
enum class TSampleOption { so00, so01, so02, so03, so04, so05, so31 = 31 };
using TSampleAnchors = TSet<TSampleAnchorKind>;
using TSampleFontStyles = TSet<TSampleFontStyle>;
using TSampleOptions = TSet<TSampleOption>;

/// Integers with identifiers of their own; distinct from the library's colours and cursors.
enum class TSampleColor : std::int32_t {};
enum class TSampleCursor : std::int16_t {};
constexpr TSampleColor SampleBtnFace{-2147483633};
constexpr TSampleColor SampleWindowText{-2147483640};

using TSampleKeyEvent = TEvent<void(TObject*, char)>;

} // namespace vcl::tests

namespace vcl
{

template <>
struct TypeTraits<tests::TSampleAlign> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<tests::TSampleAnchorKind> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TSampleAnchors";
};
template <>
struct TypeTraits<tests::TSampleAlignment> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<tests::TSampleFontStyle> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TSampleFontStyles";
};
template <>
struct TypeTraits<tests::TSampleOption> {
    static const TTypeInfo& Info();
    static constexpr const char* SetName = "TSampleOptions";
};
template <>
struct TypeTraits<tests::TSampleColor> {
    static const TTypeInfo& Info();
};
template <>
struct TypeTraits<tests::TSampleCursor> {
    static const TTypeInfo& Info();
};

} // namespace vcl
