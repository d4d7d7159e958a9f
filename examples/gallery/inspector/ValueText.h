#pragma once

#include <string_view>

#include "vcl/classes/Properties.h"

namespace gallery
{

/// A property's value as the inspector shows it: names of enumeration values and colours, sets as "[a, b]",
/// dates as "2026-03-18", times as "09:30:00". Sub-objects show their class in parentheses, events the name
/// of their handler.
vcl::AnsiString ValueToText(const vcl::TTypeInfo& Type, const vcl::TPropertyValue& Value);

/// The inverse, for every kind but classes and events. Names are read without regard to case; a colour may
/// also be a number ("$00FF8000", "255"). Raises EPropertyError with a sentence for the user.
vcl::TPropertyValue TextToValue(const vcl::TTypeInfo& Type, std::string_view Text);

/// True for a component that a property refers to rather than a sub-object that belongs to the property.
bool IsReferenceType(const vcl::TTypeInfo& Type);

} // namespace gallery
