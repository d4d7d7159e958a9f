#pragma once

#include <set>
#include <string_view>
#include <vector>

#include "vcl/classes/Persistent.h"

namespace gallery
{

/// What edits a row's value.
enum class TRowEditor {
    ReadOnly, // nothing
    Text,     // a line of text
    Choice,   // one of Inspector.Choices
};

/// One line of the inspector: a published property of the object, or of a sub-object that is open.
struct TInspectorRow {
    vcl::AnsiString Path; // dotted: "Font.Height"
    vcl::AnsiString Text; // the value
    TRowEditor Editor = TRowEditor::Text;
    int Depth = 0;             // 0 for the object's own properties
    bool IsExpandable = false; // a sub-object with properties of its own
    bool IsExpanded = false;
};

/// The published properties of an object as rows of text, made from its class's table.
///
///     TInspector Inspector;
///     Inspector.SetObject(View);
///     Inspector.SetText("Font.Height", "-20");
///
/// Paths are compared without regard to case. The object must outlive its inspection; null: no rows.
class TInspector
{
public:
    vcl::TPersistent* GetObject() const { return FObject; }
    /// Sub-objects that were open stay open where the new object has them too.
    void SetObject(vcl::TPersistent* Value) { FObject = Value; }

    /// Properties by name, then events by name; rows of an open sub-object follow it.
    std::vector<TInspectorRow> Rows() const;
    /// Opens or closes a sub-object; other rows stay as they are.
    void Toggle(const vcl::AnsiString& Path);

    /// The value as it is now. EPropertyError when there is no such property.
    vcl::AnsiString GetText(std::string_view Path) const;
    /// Reads the text and sets the property. Raises EPropertyError for text that the property does not take,
    /// and what its setter raises; the value is then as it was.
    void SetText(std::string_view Path, std::string_view Text);
    /// The values of an enumeration, or the components that a reference may name, first none; in order.
    std::vector<vcl::AnsiString> Choices(std::string_view Path) const;

private:
    struct TPlace {
        vcl::TPersistent* Object;
        const vcl::TPropertyInfo* Property;
    };
    TPlace Find(std::string_view Path) const;
    void AddRows(std::vector<TInspectorRow>& Rows, vcl::TPersistent& Object, const vcl::AnsiString& Prefix,
                 int Depth) const;
    std::vector<vcl::TPersistent*> Candidates(const vcl::TTypeInfo& Type) const;

    vcl::TPersistent* FObject = nullptr;
    std::set<vcl::AnsiString> FExpanded;
};

} // namespace gallery
