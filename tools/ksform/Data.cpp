#include <cinttypes>
#include <cmath>
#include <cstdio>
#include <vector>

#include "KSTimeView/KSTimeView.h"
#include "KSTreeView/KSTreeView.h"
#include "ksform/Files.h"
#include "ksform/Json.h"
#include "ksform/Options.h"
#include "ksform/Verbs.h"
#include "vcl/graphics/Colors.h"
#include "vcl/system/CodePage.h"
#include "vcl/system/DateTime.h"
#include "vcl/system/FormatDateTime.h"

namespace ksform
{

using namespace vcl;

namespace
{

/// One field of a record: as text for people, and as JSON spells it.
struct TField {
    const char* Name;
    std::string Text;
    std::string Json;
};
using TRecord = std::vector<TField>;

TField TextField(const char* Name, const AnsiString& Value)
{
    const std::string Shown = AnsiToUtf8(Value);
    return {Name, Shown, JsonString(Shown)};
}

TField NumberField(const char* Name, std::int64_t Value)
{
    return {Name, std::to_string(Value), std::to_string(Value)};
}

TField FlagField(const char* Name, bool Value)
{
    return {Name, Value ? "True" : "False", Value ? "true" : "false"};
}

TField ColorField(const char* Name, TColor Value)
{
    return {Name, ColorToString(Value), JsonString(ColorToString(Value))};
}

TField TimeField(const char* Name, TDateTime Value)
{
    if (!IsCalendarDate(Value)) {
        char Number[40];
        std::snprintf(Number, sizeof Number, "%g", Value);
        return {Name, Number, JsonString(Number)};
    }
    const std::string Text = FormatDateTime("yyyy\"-\"mm\"-\"dd hh\":\"nn\":\"ss", Value);
    return {Name, Text, JsonString(Text)};
}

/// The records of a stream, and what was wrong with it (empty: nothing).
struct TContents {
    std::vector<TRecord> Records;
    std::string Problem;
};

TRecord Describe(const TKSTimeViewItem& Item)
{
    return {
        TextField("Caption", Item.GetCaption()),
        TimeField("StartTime", Item.GetStartTime()),
        TimeField("EndTime", Item.GetEndTime()),
        ColorField("Color", Item.GetColor()),
        NumberField("ImageIndex", Item.GetImageIndex()),
        FlagField("AllDay", Item.GetAllDay()),
        ColorField("AllDayColor", Item.GetAllDayColor()),
        FlagField("ShowReminder", Item.GetShowReminder()),
        FlagField("PrivateItem", Item.GetPrivateItem()),
        NumberField("Data", static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(Item.GetData()))),
        NumberField("UserFlag", Item.GetUserFlag()),
        TextField("UserText", Item.GetUserText()),
    };
}

TContents ReadTimeViewItems(TStream& Stream)
{
    TContents Contents;
    TKSTimeViewItems Items(nullptr);
    try {
        Items.ReadData(Stream);
    } catch (const EReadError& Error) {
        Contents.Problem = Error.what();
    }
    for (const TKSTimeViewItem* Item : Items)
        Contents.Records.push_back(Describe(*Item));
    return Contents;
}

TRecord Describe(const TKSTreeNode& Node)
{
    return {
        TextField("Text", Node.GetText()),
        NumberField("Level", Node.GetLevel()),
        NumberField("Count", Node.GetCount()),
        NumberField("ImageIndex", Node.GetImageIndex()),
        NumberField("Data", static_cast<std::int64_t>(reinterpret_cast<std::intptr_t>(Node.GetData()))),
        NumberField("IntData", Node.GetIntData()),
        TextField("StringData", Node.GetStringData()),
    };
}

TContents ReadTreeNodes(TStream& Stream)
{
    TContents Contents;
    TKSTreeNodes Nodes;
    try {
        Nodes.ReadData(Stream);
    } catch (const EReadError& Error) {
        Contents.Problem = Error.what();
    }
    for (const TKSTreeNode* Node = Nodes.GetFirstNode(); Node; Node = Node->GetNext())
        Contents.Records.push_back(Describe(*Node));
    return Contents;
}

struct TCollectionKind {
    const char* Name;
    TContents (*Read)(TStream& Stream);
};

constexpr TCollectionKind Kinds[] = {
    {"TKSTimeViewItems", ReadTimeViewItems},
    {"TKSTreeNodes", ReadTreeNodes},
};

const TCollectionKind& KindOf(const std::string& Name)
{
    std::string Known;
    for (const TCollectionKind& Kind : Kinds) {
        if (SameText(Kind.Name, Name))
            return Kind;
        Known += (Known.empty() ? "" : ", ") + std::string(Kind.Name);
    }
    throw EUsage("there is no collection " + Name + "; known: " + Known);
}

void PrintJson(const std::vector<TRecord>& Records)
{
    std::string Text;
    for (const TRecord& Record : Records) {
        std::string Fields;
        for (const TField& Field : Record)
            Fields += (Fields.empty() ? "" : ", ") + JsonString(Field.Name) + ": " + Field.Json;
        Text += (Text.empty() ? "" : ",\n ") + ("{" + Fields + "}");
    }
    std::printf("[%s]\n", Text.c_str());
}

void PrintText(const std::vector<TRecord>& Records)
{
    for (std::size_t Index = 0; Index < Records.size(); ++Index) {
        std::printf("%zu:\n", Index);
        for (const TField& Field : Records[Index])
            std::printf("  %-14s %s\n", Field.Name, Field.Text.c_str());
    }
}

} // namespace

int RunData(const TArguments& Arguments)
{
    std::string FileName;
    std::string Kind;
    bool AsJson = false;
    TOptionParser()
        .Value("--as", [&](const std::string& Value) { Kind = Value; })
        .Switch("--json", AsJson)
        .Single(FileName, "one file at a time")
        .Parse(Arguments);
    if (FileName.empty() || Kind.empty())
        throw EUsage("a file and --as CLASS are needed");
    const TCollectionKind& Collection = KindOf(Kind);
    TMemoryStream Stream;
    ReadWhole(FileName, Stream);
    Stream.SetPosition(0);
    const TContents Contents = Collection.Read(Stream);
    if (AsJson)
        PrintJson(Contents.Records);
    else
        PrintText(Contents.Records);
    if (Contents.Problem.empty() && Stream.Remaining() == 0)
        return Success;
    const std::string Problem = Contents.Problem.empty()
                                    ? std::to_string(Stream.Remaining()) + " bytes behind the last record"
                                    : Contents.Problem;
    std::fprintf(stderr, "ksform: %s:%" PRId64 ": %s\n", FileName.c_str(), Stream.GetPosition(),
                 Problem.c_str());
    return Failure;
}

} // namespace ksform
