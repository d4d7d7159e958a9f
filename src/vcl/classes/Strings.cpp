#include "vcl/classes/Strings.h"

#include "vcl/streaming/Filer.h"
#include "vcl/streaming/Reader.h"
#include "vcl/streaming/Writer.h"
#include "vcl/system/CodePage.h"

namespace vcl
{

const TClass& TStrings::StaticClass()
{
    static const TClass Class = DefineClass<TStrings, TPersistent>("TStrings");
    return Class;
}

void TStrings::RaiseIndexError(int Index)
{
    throw EStringListError("List index out of bounds (" + IntToStr(Index) + ")");
}

void TStrings::SetString(int Index, const AnsiString& Text)
{
    TObject* const Object = GetObject(Index);
    Delete(Index);
    InsertObject(Index, Text, Object);
}

TObject* TStrings::GetObject(int Index) const
{
    if (Index < 0 || Index >= GetCount())
        RaiseIndexError(Index);
    return nullptr;
}

void TStrings::SetObject(int Index, TObject*)
{
    if (Index < 0 || Index >= GetCount())
        RaiseIndexError(Index);
}

AnsiString TStrings::GetName(int Index) const
{
    const AnsiString Text = GetString(Index);
    const std::size_t Separator = Text.find(FNameValueSeparator);
    return Separator == AnsiString::npos ? AnsiString() : Text.substr(0, Separator);
}

AnsiString TStrings::GetValueFromIndex(int Index) const
{
    if (Index == -1)
        return {};
    const AnsiString Text = GetString(Index);
    const std::size_t Separator = Text.find(FNameValueSeparator);
    return Separator == AnsiString::npos ? Text : Text.substr(Separator + 1);
}

void TStrings::SetValueFromIndex(int Index, const AnsiString& Value)
{
    if (Value.empty()) {
        if (Index != -1)
            Delete(Index);
        return;
    }
    const int Place = Index == -1 ? Add({}) : Index;
    SetString(Place, GetName(Place) + FNameValueSeparator + Value);
}

AnsiString TStrings::GetValue(std::string_view Name) const
{
    return GetValueFromIndex(IndexOfName(Name));
}

void TStrings::SetValue(const AnsiString& Name, const AnsiString& Value)
{
    const int Index = IndexOfName(Name);
    const AnsiString Text = Name + FNameValueSeparator + Value;
    if (Value.empty()) {
        if (Index >= 0)
            Delete(Index);
    } else if (Index >= 0)
        SetString(Index, Text);
    else
        Add(Text);
}

int TStrings::IndexOf(std::string_view Text) const
{
    const int Count = GetCount();
    for (int Index = 0; Index < Count; ++Index)
        if (CompareStrings(GetString(Index), Text) == 0)
            return Index;
    return -1;
}

int TStrings::IndexOfName(std::string_view Name) const
{
    const int Count = GetCount();
    for (int Index = 0; Index < Count; ++Index) {
        const AnsiString Text = GetString(Index);
        const std::size_t Separator = Text.find(FNameValueSeparator);
        if (Separator != AnsiString::npos &&
            CompareStrings(std::string_view(Text).substr(0, Separator), Name) == 0)
            return Index;
    }
    return -1;
}

int TStrings::IndexOfObject(const TObject* Object) const
{
    const int Count = GetCount();
    for (int Index = 0; Index < Count; ++Index)
        if (GetObject(Index) == Object)
            return Index;
    return -1;
}

bool TStrings::Equals(const TStrings& Other) const
{
    const int Count = GetCount();
    if (Count != Other.GetCount())
        return false;
    for (int Index = 0; Index < Count; ++Index)
        if (GetString(Index) != Other.GetString(Index))
            return false;
    return true;
}

int TStrings::Add(const AnsiString& Text)
{
    const int Index = GetCount();
    Insert(Index, Text);
    return Index;
}

int TStrings::AddObject(const AnsiString& Text, TObject* Object)
{
    const int Index = Add(Text);
    SetObject(Index, Object);
    return Index;
}

void TStrings::AddStrings(const TStrings& Other)
{
    Update([&] {
        const int Count = Other.GetCount();
        for (int Index = 0; Index < Count; ++Index)
            AddObject(Other.GetString(Index), Other.GetObject(Index));
    });
}

void TStrings::InsertObject(int Index, const AnsiString& Text, TObject* Object)
{
    Insert(Index, Text);
    SetObject(Index, Object);
}

void TStrings::Exchange(int Index1, int Index2)
{
    const AnsiString Text1 = GetString(Index1);
    const AnsiString Text2 = GetString(Index2);
    TObject* const Object1 = GetObject(Index1);
    TObject* const Object2 = GetObject(Index2);
    Update([&] {
        SetString(Index1, Text2);
        SetObject(Index1, Object2);
        SetString(Index2, Text1);
        SetObject(Index2, Object1);
    });
}

void TStrings::Move(int CurIndex, int NewIndex)
{
    if (CurIndex == NewIndex)
        return;
    const AnsiString Text = GetString(CurIndex);
    TObject* const Object = GetObject(CurIndex);
    // Taking out comes first: programs know that a move to a wrong index raises and has lost the string.
    Update([&] {
        Delete(CurIndex);
        InsertObject(NewIndex, Text, Object);
    });
}

void TStrings::Assign(const TPersistent* Source)
{
    const auto* const Other = As<TStrings>(Source);
    if (!Other) {
        TPersistent::Assign(Source);
        return;
    }
    if (Other == this)
        return;
    Update([&] {
        Clear();
        FLineBreak = Other->FLineBreak;
        FDelimiter = Other->FDelimiter;
        FQuoteChar = Other->FQuoteChar;
        FNameValueSeparator = Other->FNameValueSeparator;
        FStrictDelimiter = Other->FStrictDelimiter;
        FTrailingLineBreak = Other->FTrailingLineBreak;
        AddStrings(*Other);
    });
}

void TStrings::BeginUpdate()
{
    if (FUpdateCount++ == 0)
        SetUpdateState(true);
}

void TStrings::EndUpdate()
{
    if (--FUpdateCount == 0)
        SetUpdateState(false);
}

void TStrings::DefineProperties(TFiler& Filer)
{
    const auto ReadData = [this](TReader& Reader) {
        Reader.ReadListBegin();
        Update([&] {
            Clear();
            while (!Reader.EndOfList())
                Add(Reader.ReadString());
        });
        Reader.ReadListEnd();
    };
    const auto WriteData = [this](TWriter& Writer) {
        Writer.WriteListBegin();
        for (int Index = 0; Index < GetCount(); ++Index)
            Writer.WriteString(GetString(Index));
        Writer.WriteListEnd();
    };
    const auto* const Ancestor = As<TStrings>(Filer.GetAncestor());
    const bool HasData = Ancestor ? !Equals(*Ancestor) : GetCount() > 0;
    Filer.DefineProperty("Strings", ReadData, WriteData, HasData);
}

int TStrings::CompareStrings(std::string_view Left, std::string_view Right) const
{
    return AnsiCompareText(Left, Right);
}

} // namespace vcl
