#pragma once

#include <string_view>
#include <utility>

#include "vcl/classes/Persistent.h"
#include "vcl/classes/Stream.h"

namespace vcl
{

/// A list of strings, each with an object, that keeps them wherever its descendant likes.
///
/// Everything here works through GetString, GetCount, Clear, Delete and InsertString, which a descendant must
/// implement, and PutString, GetObject, PutObject, Add and the rest, which it may. An index outside
/// 0..Count - 1 raises EStringListError.
class TStrings : public TPersistent
{
    VCL_CLASS
public:
    TStrings() = default;

    virtual int GetCount() const = 0;
    virtual AnsiString GetString(int Index) const = 0;
    /// Replaces a string, keeping its object.
    virtual void SetString(int Index, const AnsiString& Text);
    AnsiString operator[](int Index) const { return GetString(Index); }
    /// Null where the list keeps no objects.
    virtual TObject* GetObject(int Index) const;
    virtual void SetObject(int Index, TObject* Object);
    virtual int GetCapacity() const { return GetCount(); }
    virtual void SetCapacity(int) {}

    /// All strings, each followed by LineBreak. Setting it splits at CR LF, CR and LF, or at LineBreak alone
    /// when that is none of the three; a last line without a break counts, nothing after the last break does
    /// not.
    virtual AnsiString GetText() const;
    virtual void SetText(std::string_view Text);
    /// CR LF unless set otherwise.
    const AnsiString& GetLineBreak() const { return FLineBreak; }
    void SetLineBreak(AnsiString LineBreak) { FLineBreak = std::move(LineBreak); }
    /// Whether Text ends in a LineBreak; true at first.
    bool GetTrailingLineBreak() const { return FTrailingLineBreak; }
    void SetTrailingLineBreak(bool Value) { FTrailingLineBreak = Value; }

    /// The strings separated by commas, in double quotes where they hold commas, quotes or blanks.
    AnsiString GetCommaText() const;
    void SetCommaText(std::string_view Text);
    /// The same with Delimiter and QuoteChar. StrictDelimiter: blanks are ordinary characters.
    AnsiString GetDelimitedText() const;
    void SetDelimitedText(std::string_view Text);
    char GetDelimiter() const { return FDelimiter; }
    void SetDelimiter(char Value) { FDelimiter = Value; }
    char GetQuoteChar() const { return FQuoteChar; }
    void SetQuoteChar(char Value) { FQuoteChar = Value; }
    bool GetStrictDelimiter() const { return FStrictDelimiter; }
    void SetStrictDelimiter(bool Value) { FStrictDelimiter = Value; }

    /// The part of a string before the first NameValueSeparator ("=" at first), empty when it has none.
    AnsiString GetName(int Index) const;
    /// The part after it, the whole string when it has none. -1 gives an empty one.
    AnsiString GetValueFromIndex(int Index) const;
    /// Replaces the part after it. An empty Value deletes the string. -1 adds a string without a name, or
    /// nothing when Value is empty.
    void SetValueFromIndex(int Index, const AnsiString& Value);
    /// The value of the first string of that name, or an empty one.
    AnsiString GetValue(std::string_view Name) const;
    /// Sets the value of the first string of that name, or adds one. An empty Value deletes it.
    void SetValue(const AnsiString& Name, const AnsiString& Value);
    char GetNameValueSeparator() const { return FNameValueSeparator; }
    void SetNameValueSeparator(char Value) { FNameValueSeparator = Value; }

    /// Index of the first such string, name or object, or -1. Strings compare by CompareStrings.
    virtual int IndexOf(std::string_view Text) const;
    virtual int IndexOfName(std::string_view Name) const;
    virtual int IndexOfObject(const TObject* Object) const;
    /// The same strings in the same order, case included; objects do not count.
    bool Equals(const TStrings& Other) const;

    /// Appends and returns the index.
    virtual int Add(const AnsiString& Text);
    virtual int AddObject(const AnsiString& Text, TObject* Object);
    void Append(const AnsiString& Text) { Add(Text); }
    /// Appends another list's strings and objects; the other may be this one.
    virtual void AddStrings(const TStrings& Other);
    /// Index may be Count.
    virtual void Insert(int Index, const AnsiString& Text) = 0;
    virtual void InsertObject(int Index, const AnsiString& Text, TObject* Object);
    virtual void Delete(int Index) = 0;
    virtual void Clear() = 0;
    virtual void Exchange(int Index1, int Index2);
    /// Takes a string out and puts it in again so that it stands at NewIndex; equal indexes do nothing. When
    /// NewIndex is wrong, or the list sorted, the error comes after the string was taken out.
    virtual void Move(int CurIndex, int NewIndex);

    /// A list of strings gives its strings, objects and separators; others as TPersistent.
    void Assign(const TPersistent* Source) override;

    /// Between the two the list does not tell of its changes; they nest.
    void BeginUpdate();
    void EndUpdate();

    /// The text from the stream's position to its end. A UTF-8 byte order mark is left out, and written again
    /// when the list is saved; all other bytes stay as they are.
    virtual void LoadFromStream(TStream& Stream);
    virtual void SaveToStream(TStream& Stream) const;
    void LoadFromFile(const AnsiString& FileName);
    void SaveToFile(const AnsiString& FileName) const;

    /// The list property "Strings", written when the list differs from the ancestor's or, without one, has
    /// strings.
    void DefineProperties(TFiler& Filer) override;

protected:
    /// Called with true by the outermost BeginUpdate and with false by the outermost EndUpdate.
    virtual void SetUpdateState(bool) {}
    bool IsUpdating() const { return FUpdateCount > 0; }
    /// Runs Action between BeginUpdate and EndUpdate, also when it raises.
    template <class TAction>
    void Update(TAction Action);
    /// Negative, 0 or positive; without regard to case unless a descendant says otherwise.
    virtual int CompareStrings(std::string_view Left, std::string_view Right) const;
    [[noreturn]] static void RaiseIndexError(int Index);

private:
    AnsiString Joined(char Delimiter, char QuoteChar, bool IsStrict) const;
    void Split(std::string_view Text, char Delimiter, char QuoteChar, bool IsStrict);

    AnsiString FLineBreak = "\r\n";
    char FDelimiter = ',';
    char FQuoteChar = '"';
    char FNameValueSeparator = '=';
    bool FStrictDelimiter = false;
    bool FTrailingLineBreak = true;
    bool FHasByteOrderMark = false;
    int FUpdateCount = 0;
};

template <class TAction>
void TStrings::Update(TAction Action)
{
    BeginUpdate();
    try {
        Action();
    } catch (...) {
        EndUpdate();
        throw;
    }
    EndUpdate();
}

} // namespace vcl
