#include "SampleComponents.h"

#include "vcl/streaming/Reader.h"
#include "vcl/streaming/Writer.h"

namespace vcl::tests
{

#define SAMPLE_ROW(CLASS, NAME) Published<&CLASS::Get##NAME, &CLASS::Set##NAME>(#NAME)

const TClass& TSampleTypes::StaticClass()
{
    static const TClass Class = DefineClass<TSampleTypes, TComponent>(
        "TSampleTypes", {
                            SAMPLE_ROW(TSampleTypes, AShortInt),
                            SAMPLE_ROW(TSampleTypes, AByte),
                            SAMPLE_ROW(TSampleTypes, ASmallInt),
                            SAMPLE_ROW(TSampleTypes, AWord),
                            SAMPLE_ROW(TSampleTypes, AInteger),
                            SAMPLE_ROW(TSampleTypes, ACardinal),
                            SAMPLE_ROW(TSampleTypes, AInt64),
                            SAMPLE_ROW(TSampleTypes, ABoolean),
                            SAMPLE_ROW(TSampleTypes, AChar),
                            SAMPLE_ROW(TSampleTypes, AEnum),
                            SAMPLE_ROW(TSampleTypes, ASet),
                            SAMPLE_ROW(TSampleTypes, ASingle),
                            SAMPLE_ROW(TSampleTypes, ADouble),
                            SAMPLE_ROW(TSampleTypes, AExtended),
                            SAMPLE_ROW(TSampleTypes, ADateTime).Type(DateTimeType()),
                            SAMPLE_ROW(TSampleTypes, ADate).Type(DateType()),
                            SAMPLE_ROW(TSampleTypes, ATime).Type(TimeType()),
                            SAMPLE_ROW(TSampleTypes, AString),
                            SAMPLE_ROW(TSampleTypes, AShortString),
                            SAMPLE_ROW(TSampleTypes, AColor),
                            SAMPLE_ROW(TSampleTypes, ACursor),
                        });
    return Class;
}

const TClass& TSampleMoney::StaticClass()
{
    static const TClass Class =
        DefineClass<TSampleMoney, TComponent>("TSampleMoney", {SAMPLE_ROW(TSampleMoney, ACurrency)});
    return Class;
}

const TClass& TSampleWide::StaticClass()
{
    static const TClass Class = DefineClass<TSampleWide, TComponent>(
        "TSampleWide", {SAMPLE_ROW(TSampleWide, AWideChar), SAMPLE_ROW(TSampleWide, AWideString)});
    return Class;
}

const TClass& TSampleDefaults::StaticClass()
{
    using T = TSampleDefaults;
    static const TClass Class = DefineClass<TSampleDefaults, TComponent>(
        "TSampleDefaults", {
                               SAMPLE_ROW(T, StoreFlag).Default(false),
                               SAMPLE_ROW(T, IntDefault7).Default(7),
                               SAMPLE_ROW(T, IntDefault0).Default(0),
                               SAMPLE_ROW(T, IntNegative).Default(-5),
                               SAMPLE_ROW(T, IntPlain),
                               SAMPLE_ROW(T, IntNoDefault).Default(3).NoDefault(),
                               SAMPLE_ROW(T, IntNeverStored).NeverStored(),
                               SAMPLE_ROW(T, IntStoredIf).Default(1).Stored<&T::GetStoreFlag>(),
                               Published<&T::GetIntReadOnly>("IntReadOnly"),
                               SAMPLE_ROW(T, BoolTrue).Default(true),
                               SAMPLE_ROW(T, BoolFalse).Default(false),
                               SAMPLE_ROW(T, BoolPlain),
                               SAMPLE_ROW(T, BoolNeverStored).NeverStored(),
                               SAMPLE_ROW(T, CharX).Default('X'),
                               SAMPLE_ROW(T, EnumRight).Default(TSampleAlign::saRight),
                               SAMPLE_ROW(T, SetTwo).Default(TSampleAnchors::FromBits(10)),
                               SAMPLE_ROW(T, Int64Default).Default(100),
                               SAMPLE_ROW(T, StrPlain),
                               SAMPLE_ROW(T, StrNeverStored).NeverStored(),
                               SAMPLE_ROW(T, StrStoredIf).Stored<&T::GetStoreFlag>(),
                               SAMPLE_ROW(T, FloatPlain),
                               SAMPLE_ROW(T, FloatStoredIf).Stored<&T::GetStoreFlag>(),
                           });
    return Class;
}

const TClass& TSampleTimer::StaticClass()
{
    static const TClass Class = DefineClass<TSampleTimer, TComponent>(
        "TSampleTimer", {
                            SAMPLE_ROW(TSampleTimer, Enabled).Default(true),
                            SAMPLE_ROW(TSampleTimer, Interval).Default(1000),
                            SAMPLE_ROW(TSampleTimer, Target),
                            Published<&TSampleTimer::OnTimer>("OnTimer"),
                        });
    return Class;
}

const TClass& TSampleData::StaticClass()
{
    static const TClass Class =
        DefineClass<TSampleData, TComponent>("TSampleData", {SAMPLE_ROW(TSampleData, Comment)});
    return Class;
}

namespace
{

std::vector<std::int64_t> ReadNumbers(TReader& Reader)
{
    std::vector<std::int64_t> Numbers;
    Reader.ReadListBegin();
    while (!Reader.EndOfList())
        Numbers.push_back(Reader.ReadInt64());
    Reader.ReadListEnd();
    return Numbers;
}

void WriteNumbers(TWriter& Writer, const std::vector<std::int64_t>& Numbers)
{
    Writer.WriteListBegin();
    for (std::int64_t Number : Numbers)
        Writer.WriteInteger(Number);
    Writer.WriteListEnd();
}

TSampleData::TMixed ReadMixed(TReader& Reader)
{
    TSampleData::TMixed Mixed;
    Reader.ReadListBegin();
    Mixed.Number = Reader.ReadInt64();
    Mixed.Text = Reader.ReadString();
    Mixed.Flag = Reader.ReadBoolean();
    Mixed.Float = Reader.ReadExtended();
    Mixed.Ident = Reader.ReadIdent();
    Reader.ReadListEnd();
    return Mixed;
}

void WriteMixed(TWriter& Writer, const TSampleData::TMixed& Mixed)
{
    Writer.WriteListBegin();
    Writer.WriteInteger(Mixed.Number);
    Writer.WriteString(Mixed.Text);
    Writer.WriteBoolean(Mixed.Flag);
    Writer.WriteExtended(Mixed.Float);
    Writer.WriteIdent(Mixed.Ident);
    Writer.WriteListEnd();
}

} // namespace

void TSampleData::DefineProperties(TFiler& Filer)
{
    TComponent::DefineProperties(Filer);
    Filer.DefineBinaryProperty(
        "Data",
        [this](TStream& Stream) {
            Data.emplace(static_cast<std::size_t>(Stream.GetSize()));
            Stream.ReadBuffer(Data->data(), Stream.GetSize());
        },
        [this](TStream& Stream) {
            Stream.WriteBuffer(Data->data(), static_cast<std::int64_t>(Data->size()));
        },
        Data.has_value());
    Filer.DefineProperty(
        "Pairs", [this](TReader& Reader) { Pairs = ReadNumbers(Reader); },
        [this](TWriter& Writer) { WriteNumbers(Writer, Pairs); }, !Pairs.empty());
    Filer.DefineProperty(
        "Mixed", [this](TReader& Reader) { Mixed = ReadMixed(Reader); },
        [this](TWriter& Writer) { WriteMixed(Writer, *Mixed); }, Mixed.has_value());
    Filer.DefineProperty(
        "Nested",
        [this](TReader& Reader) {
            Nested.clear();
            Reader.ReadListBegin();
            while (!Reader.EndOfList())
                Nested.push_back(ReadNumbers(Reader));
            Reader.ReadListEnd();
        },
        [this](TWriter& Writer) {
            Writer.WriteListBegin();
            for (const auto& Numbers : Nested)
                WriteNumbers(Writer, Numbers);
            Writer.WriteListEnd();
        },
        !Nested.empty());
    Filer.DefineProperty(
        "Stamp", [this](TReader& Reader) { Stamp = Reader.ReadExtended(); },
        [this](TWriter& Writer) { Writer.WriteExtended(*Stamp); }, Stamp.has_value());
    Filer.DefineProperty(
        "Flag", [this](TReader& Reader) { Flag = Reader.ReadBoolean(); },
        [this](TWriter& Writer) { Writer.WriteBoolean(*Flag); }, Flag.has_value());
}

} // namespace vcl::tests
