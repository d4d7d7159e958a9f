#include "vcl/streaming/ObjectText.h"
#include "vcl/streaming/Writer.h"
#include "vcl/system/CodePage.h"

namespace vcl
{

namespace
{

constexpr std::size_t LongestName = 255;

class TTextToBinary
{
public:
    TTextToBinary(TStream& Input, TStream& Output, const TObjectTextOptions& Options)
        : FParser(Input), FOutput(Output), FWriter(Output), FOptions(Options)
    {
    }

    /// Answers how many bytes of text were read.
    std::size_t Convert()
    {
        FWriter.WriteSignature();
        FParser.NextToken();
        ConvertObject();
        return FEnd;
    }

private:
    class TDepth
    {
    public:
        explicit TDepth(TTextToBinary& Owner) : FOwner(Owner)
        {
            if (FOwner.FDepth >= MaxFormDepth)
                FOwner.FParser.Error("The form is nested more than " + IntToStr(MaxFormDepth) +
                                     " levels deep");
            ++FOwner.FDepth;
        }
        ~TDepth() { --FOwner.FDepth; }
        TDepth(const TDepth&) = delete;
        TDepth& operator=(const TDepth&) = delete;

    private:
        TTextToBinary& FOwner;
    };

    bool IsAccepted(const EFormParserError& Error) const
    {
        return FOptions.OnError && FOptions.OnError(Error);
    }

    bool AtObject() const
    {
        return FParser.IsSymbol("object") || FParser.IsSymbol("inherited") || FParser.IsSymbol("inline");
    }

    void MarkPosition()
    {
        if (FOptions.Positions)
            FOptions.Positions->push_back({FOutput.GetPosition(), FParser.GetLine(), FParser.GetColumn()});
    }

    /// Leaves out what was written since Start and looks for a line to go on with.
    void Recover(std::int64_t Start, int Line)
    {
        FOutput.SetSize(Start);
        FOutput.SetPosition(Start);
        FParser.Resynchronise(Line);
    }

    AnsiString TakeName()
    {
        if (FParser.GetKind() == TTokenKind::Symbol && FParser.GetString().size() > LongestName)
            FParser.Error("A name has at most 255 characters");
        return FParser.TakeSymbol();
    }

    void ConvertObject()
    {
        const TDepth Depth(*this);
        ConvertHeader();
        bool HasChildren = false;
        while (!FParser.IsSymbol("end"))
            ConvertPart(HasChildren);
        if (!HasChildren)
            FWriter.WriteListEnd();
        FWriter.WriteListEnd();
        FEnd = FParser.GetTokenStart() + 3;
        // Behind the form's own end stands nothing that is read.
        if (FDepth > 1)
            FParser.NextToken();
    }

    /// A property, or a child behind all properties.
    void ConvertPart(bool& HasChildren)
    {
        if (AtObject()) {
            if (!HasChildren)
                FWriter.WriteListEnd();
            HasChildren = true;
            ConvertObject();
        } else if (FParser.GetKind() == TTokenKind::Symbol && !HasChildren)
            ConvertProperty();
        else
            RefusePart();
    }

    void RefusePart()
    {
        try {
            FParser.ErrorExpected(FParser.GetKind() == TTokenKind::Symbol
                                      ? "\"end\" or an object (properties stand before the objects)"
                                      : "a property, an object or \"end\"");
        } catch (const EFormParserError& Error) {
            if (FParser.GetKind() == TTokenKind::End || !IsAccepted(Error))
                throw;
            FParser.Resynchronise(FParser.GetLine());
        }
    }

    void ConvertHeader()
    {
        MarkPosition();
        std::uint8_t Flags = 0;
        if (FParser.IsSymbol("inherited"))
            Flags = 1;
        else if (FParser.IsSymbol("inline"))
            Flags = 4;
        else if (!FParser.IsSymbol("object"))
            FParser.ErrorExpected("\"object\"");
        FParser.NextToken();
        AnsiString Name;
        AnsiString ClassName = TakeName();
        if (FParser.IsSpecial(':')) {
            FParser.NextToken();
            Name = std::exchange(ClassName, TakeName());
        }
        std::int64_t ChildPosition = 0;
        if (FParser.IsSpecial('[')) {
            FParser.NextToken();
            ChildPosition = TakeInteger();
            Flags |= 2;
            FParser.Expect(']');
        }
        if (Flags != 0 || ClassName.size() >= 0xF0)
            FOutput.WriteByte(static_cast<std::uint8_t>(0xF0 | Flags));
        if ((Flags & 2) != 0)
            FWriter.WriteInteger(ChildPosition);
        FWriter.WriteStr(ClassName);
        FWriter.WriteStr(Name);
    }

    void ConvertProperty()
    {
        const std::int64_t Start = FOutput.GetPosition();
        const int Line = FParser.GetLine();
        const std::size_t Marks = FOptions.Positions ? FOptions.Positions->size() : 0;
        try {
            MarkPosition();
            AnsiString Name = TakeName();
            while (FParser.IsSpecial('.')) {
                FParser.NextToken();
                Name += "." + TakeName();
            }
            if (Name.size() > LongestName)
                FParser.Error("A property's name has at most 255 characters");
            FWriter.WriteStr(Name);
            FParser.Expect('=');
            ConvertValue();
        } catch (const EFormParserError& Error) {
            // Inside an item the property around the collection is given up as a whole.
            if (FInItem || !IsAccepted(Error))
                throw;
            if (FOptions.Positions)
                FOptions.Positions->resize(Marks);
            Recover(Start, Line);
        }
    }

    std::int64_t TakeInteger()
    {
        if (FParser.GetKind() != TTokenKind::Integer)
            FParser.ErrorExpected("a whole number");
        const std::int64_t Value = FParser.GetInteger();
        if (Value < INT32_MIN || Value > INT32_MAX)
            FParser.Error("The number does not fit into 32 bits");
        FParser.NextToken();
        return Value;
    }

    void ConvertValue()
    {
        const TDepth Depth(*this);
        switch (FParser.GetKind()) {
        case TTokenKind::Symbol:
            ConvertIdentifier();
            break;
        case TTokenKind::String:
        case TTokenKind::WideText:
            ConvertString();
            break;
        case TTokenKind::Integer:
            FWriter.WriteInteger(FParser.GetInteger());
            FParser.NextToken();
            break;
        case TTokenKind::Float:
            ConvertFloat();
            break;
        default:
            ConvertGroup();
        }
    }

    void ConvertGroup()
    {
        if (FParser.IsSpecial('['))
            ConvertSet();
        else if (FParser.IsSpecial('('))
            ConvertList();
        else if (FParser.IsSpecial('<'))
            ConvertCollection();
        else if (FParser.IsSpecial('{')) {
            const std::vector<std::uint8_t> Bytes = FParser.TakeBinary();
            FWriter.WriteBinary(Bytes.data(), Bytes.size());
        } else
            FParser.ErrorExpected("a value");
    }

    void ConvertIdentifier()
    {
        AnsiString Name = TakeName();
        while (FParser.IsSpecial('.')) {
            FParser.NextToken();
            Name += "." + TakeName();
        }
        if (Name.size() > LongestName)
            FParser.Error("A name has at most 255 characters");
        // The one floating point value that has no digits.
        if (Name == "NAN")
            FWriter.WriteExtended(TExtended::FromParts(false, 0x7FFF, std::uint64_t{3} << 62));
        else
            FWriter.WriteIdent(Name);
    }

    void ConvertFloat()
    {
        const TExtended& Value = FParser.GetFloat();
        const double Double = Value.ToDouble();
        switch (FParser.GetFloatSuffix()) {
        case 's': {
            const float Single = static_cast<float>(Double);
            FWriter.WriteValue(TValueType::vaSingle);
            FWriter.WriteBytes(&Single, sizeof Single);
            break;
        }
        case 'c':
            FWriter.WriteValue(TValueType::vaCurrency);
            FOutput.WriteDWord(static_cast<std::uint32_t>(Value.ToCurrency().Scaled));
            FOutput.WriteDWord(static_cast<std::uint32_t>(Value.ToCurrency().Scaled >> 32));
            break;
        case 'd':
            FWriter.WriteValue(TValueType::vaDate);
            FOutput.WriteDouble(Double);
            break;
        default:
            FWriter.WriteExtended(Value);
        }
        FParser.NextToken();
    }

    void ConvertString()
    {
        AnsiString Narrow;
        WideString Wide;
        bool IsWide = false;
        for (;;) {
            if (FParser.GetKind() == TTokenKind::WideText && !IsWide) {
                Wide = AnsiToWide(Narrow);
                IsWide = true;
            }
            if (FParser.GetKind() == TTokenKind::WideText)
                Wide += FParser.GetWideString();
            else if (IsWide)
                Wide += AnsiToWide(FParser.GetString());
            else
                Narrow += FParser.GetString();
            FParser.NextToken();
            if (!FParser.IsSpecial('+'))
                break;
            FParser.NextToken();
            if (FParser.GetKind() != TTokenKind::String && FParser.GetKind() != TTokenKind::WideText)
                FParser.ErrorExpected("a string");
        }
        IsWide ? FWriter.WriteWideString(Wide) : FWriter.WriteString(Narrow);
    }

    void ConvertSet()
    {
        FParser.NextToken();
        FWriter.WriteValue(TValueType::vaSet);
        if (!FParser.IsSpecial(']'))
            for (;;) {
                FWriter.WriteStr(TakeName());
                if (!FParser.IsSpecial(','))
                    break;
                FParser.NextToken();
            }
        FParser.Expect(']');
        FWriter.WriteStr("");
    }

    void ConvertList()
    {
        FParser.NextToken();
        FWriter.WriteListBegin();
        while (!FParser.IsSpecial(')'))
            ConvertValue();
        FParser.NextToken();
        FWriter.WriteListEnd();
    }

    void ConvertCollection()
    {
        const bool Outer = std::exchange(FInItem, true);
        try {
            FParser.NextToken();
            FWriter.WriteValue(TValueType::vaCollection);
            while (!FParser.IsSpecial('>'))
                ConvertItem();
        } catch (...) {
            FInItem = Outer;
            throw;
        }
        FInItem = Outer;
        FParser.NextToken();
        FWriter.WriteListEnd();
    }

    void ConvertItem()
    {
        FParser.ExpectSymbol("item");
        if (FParser.IsSpecial('[')) {
            FParser.NextToken();
            FWriter.WriteInteger(TakeInteger());
            FParser.Expect(']');
        }
        FWriter.WriteListBegin();
        while (!FParser.IsSymbol("end"))
            ConvertProperty();
        FParser.NextToken();
        FWriter.WriteListEnd();
    }

    TParser FParser;
    TStream& FOutput;
    TWriter FWriter;
    const TObjectTextOptions& FOptions;
    int FDepth = 0;
    bool FInItem = false;
    std::size_t FEnd = 0;
};

} // namespace

void ObjectTextToBinary(TStream& Input, TStream& Output, const TObjectTextOptions& Options)
{
    const std::int64_t Start = Input.GetPosition();
    TMemoryStream Image;
    const std::size_t Length = TTextToBinary(Input, Image, Options).Convert();
    Input.SetPosition(Start + static_cast<std::int64_t>(Length));
    Output.WriteBuffer(Image.GetMemory(), Image.GetSize());
}

} // namespace vcl
