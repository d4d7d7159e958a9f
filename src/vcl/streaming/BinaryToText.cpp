#include <algorithm>
#include <bit>

#include "vcl/streaming/ObjectText.h"
#include "vcl/streaming/Reader.h"
#include "vcl/system/CodePage.h"

namespace vcl
{

namespace
{

constexpr const char* LineEnd = "\r\n";
constexpr std::size_t PieceLength = 64;
constexpr std::size_t BytesInLine = 32;

class TBinaryToText
{
public:
    TBinaryToText(TStream& Input, TStream& Output) : FReader(Input), FOutput(Output) {}

    void Convert()
    {
        FReader.ReadSignature();
        ConvertObject();
        FReader.FlushBuffer();
        FOutput.WriteBuffer(FText.data(), static_cast<std::int64_t>(FText.size()));
    }

private:
    class TDepth
    {
    public:
        explicit TDepth(int& Depth) : FDepth(Depth)
        {
            if (FDepth >= MaxFormDepth)
                throw EReadError("The form is nested more than " + IntToStr(MaxFormDepth) + " levels deep");
            ++FDepth;
        }
        ~TDepth() { --FDepth; }
        TDepth(const TDepth&) = delete;
        TDepth& operator=(const TDepth&) = delete;

    private:
        int& FDepth;
    };

    void Write(std::string_view Text) { FText += Text; }
    void WriteLine(std::string_view Text)
    {
        Write(Text);
        Write(LineEnd);
    }
    void Indent(int Extra = 0) { FText.append(static_cast<std::size_t>(FIndent + Extra) * 2, ' '); }
    void BreakLine(int Extra = 0)
    {
        Write(LineEnd);
        Indent(Extra);
    }

    void ConvertObject()
    {
        const TDepth Depth(FDepth);
        ConvertHeader();
        ++FIndent;
        while (!FReader.EndOfList())
            ConvertProperty();
        FReader.ReadListEnd();
        while (!FReader.EndOfList())
            ConvertObject();
        FReader.ReadListEnd();
        --FIndent;
        Indent();
        WriteLine("end");
    }

    void ConvertHeader()
    {
        unsigned Flags = 0;
        std::int64_t ChildPosition = 0;
        // The byte is a prefix when its upper half is set, else the length of the class name.
        if ((static_cast<unsigned>(FReader.NextValue()) & 0xF0u) == 0xF0u) {
            Flags = static_cast<unsigned>(FReader.ReadValue()) & 0x0Fu;
            if ((Flags & 2) != 0)
                ChildPosition = FReader.ReadInt64();
        }
        const AnsiString ClassName = FReader.ReadStr();
        const AnsiString Name = FReader.ReadStr();
        Indent();
        Write((Flags & 1) != 0 ? "inherited " : (Flags & 4) != 0 ? "inline " : "object ");
        if (!Name.empty())
            Write(Name + ": ");
        Write(ClassName);
        if ((Flags & 2) != 0)
            Write(" [" + IntToStr(ChildPosition) + "]");
        Write(LineEnd);
    }

    void ConvertProperty()
    {
        Indent();
        Write(FReader.ReadStr());
        Write(" = ");
        ConvertValue();
        Write(LineEnd);
    }

    void ConvertValue()
    {
        const TDepth Depth(FDepth);
        switch (FReader.NextValue()) {
        case TValueType::vaList:
            ConvertList();
            break;
        case TValueType::vaInt8:
        case TValueType::vaInt16:
        case TValueType::vaInt32:
        case TValueType::vaInt64:
            Write(IntToStr(FReader.ReadInt64()));
            break;
        case TValueType::vaExtended:
        case TValueType::vaDouble:
            WriteFloat("");
            break;
        case TValueType::vaSingle:
            WriteFloat("s");
            break;
        case TValueType::vaCurrency:
            WriteFloat("c");
            break;
        case TValueType::vaDate:
            WriteFloat("d");
            break;
        case TValueType::vaIdent:
        case TValueType::vaFalse:
        case TValueType::vaTrue:
        case TValueType::vaNil:
            Write(FReader.ReadIdent());
            break;
        case TValueType::vaString:
        case TValueType::vaLString:
            ConvertNarrowString();
            break;
        case TValueType::vaWString:
        case TValueType::vaUTF8String:
            ConvertWideString();
            break;
        case TValueType::vaBinary:
            ConvertBinary();
            break;
        case TValueType::vaSet:
            ConvertSet();
            break;
        case TValueType::vaCollection:
            ConvertCollection();
            break;
        default:
            throw EReadError("Unknown kind of value: " + IntToStr(static_cast<int>(FReader.NextValue())));
        }
    }

    void WriteFloat(const char* Suffix)
    {
        const TExtended Value = FReader.ReadExtended();
        if (Value.IsFinite())
            Write(Value.ToText() + Suffix);
        else if (Value.Significand() << 1 != 0)
            Write("NAN");
        else
            // A number far beyond the range reads as infinity.
            Write(AnsiString(Value.IsNegative() ? "-1.0E9999" : "1.0E9999") + Suffix);
    }

    void ConvertSet()
    {
        FReader.ReadValue();
        Write("[");
        bool IsFirst = true;
        for (AnsiString Name = FReader.ReadStr(); !Name.empty(); Name = FReader.ReadStr()) {
            Write(IsFirst ? "" : ", ");
            Write(Name);
            IsFirst = false;
        }
        Write("]");
    }

    void ConvertList()
    {
        FReader.ReadListBegin();
        Write("(");
        ++FIndent;
        while (!FReader.EndOfList()) {
            BreakLine();
            ConvertValue();
        }
        --FIndent;
        FReader.ReadListEnd();
        Write(")");
    }

    void ConvertCollection()
    {
        FReader.ReadValue();
        Write("<");
        ++FIndent;
        while (!FReader.EndOfList()) {
            BreakLine();
            Write("item");
            if (FReader.NextValue() != TValueType::vaList)
                Write(" [" + IntToStr(FReader.ReadInt64()) + "]");
            FReader.ReadListBegin();
            Write(LineEnd);
            ++FIndent;
            while (!FReader.EndOfList())
                ConvertProperty();
            --FIndent;
            FReader.ReadListEnd();
            Indent();
            Write("end");
        }
        --FIndent;
        FReader.ReadListEnd();
        Write(">");
    }

    void ConvertBinary()
    {
        static constexpr char Digits[] = "0123456789ABCDEF";
        const std::vector<std::uint8_t> Bytes = FReader.ReadBinary();
        Write("{");
        for (std::size_t Index = 0; Index < Bytes.size(); ++Index) {
            if (Index % BytesInLine == 0)
                BreakLine(1);
            FText += Digits[Bytes[Index] >> 4];
            FText += Digits[Bytes[Index] & 0x0F];
        }
        Write("}");
    }

    /// Breaks a long string into pieces on lines of their own. IsPlain tells what may stand in quotes.
    template <class TText, class TIsPlain>
    void WritePieces(const TText& Text, const TIsPlain& IsPlain)
    {
        if (Text.empty())
            return Write("''");
        const bool IsLong = Text.size() > PieceLength;
        if (IsLong)
            ++FIndent;
        for (std::size_t Start = 0; Start < Text.size();) {
            std::size_t End = std::min(Start + PieceLength, Text.size());
            // A UTF-8 sequence stays in one piece.
            if constexpr (std::is_same_v<TText, AnsiString>)
                while (End < Text.size() && (static_cast<unsigned char>(Text[End]) & 0xC0) == 0x80)
                    ++End;
            if (IsLong)
                BreakLine();
            WritePiece(Text.substr(Start, End - Start), IsPlain);
            Write(End < Text.size() ? " +" : "");
            Start = End;
        }
        if (IsLong)
            --FIndent;
    }

    template <class TText, class TIsPlain>
    void WritePiece(const TText& Piece, const TIsPlain& IsPlain)
    {
        bool IsQuoted = false;
        for (const auto Character : Piece) {
            const auto Code = static_cast<std::make_unsigned_t<decltype(Character)>>(Character);
            if (IsPlain(Code) != IsQuoted) {
                FText += '\'';
                IsQuoted = !IsQuoted;
            }
            if (!IsQuoted)
                Write("#" + IntToStr(Code));
            else
                FText.append(Code == '\'' ? 2 : 1, static_cast<char>(Code));
        }
        if (IsQuoted)
            FText += '\'';
    }

    void ConvertNarrowString()
    {
        const AnsiString Text = FReader.ReadString();
        // Bytes above 127 are text of the code page and stand for themselves.
        WritePieces(Text, [](unsigned Code) { return Code >= ' ' && Code != 127; });
    }

    void ConvertWideString()
    {
        WritePieces(FReader.ReadWideString(), [](unsigned Code) { return Code >= ' ' && Code < 127; });
    }

    TReader FReader;
    TStream& FOutput;
    AnsiString FText;
    int FIndent = 0;
    int FDepth = 0;
};

} // namespace

void ObjectBinaryToText(TStream& Input, TStream& Output)
{
    TBinaryToText(Input, Output).Convert();
}

} // namespace vcl
