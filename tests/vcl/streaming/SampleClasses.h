#pragma once

#include "SampleTypes.h"
#include "vcl/classes/Collection.h"
#include "vcl/classes/Component.h"
#include "vcl/classes/StringList.h"

namespace vcl::tests
{

// A small family of classes that uses every kind of property. Plain values are public members; a macro gives
// each its getter and setter.
#define SAMPLE_VALUE(TYPE, NAME, INITIAL)                                                                    \
    TYPE F##NAME = INITIAL;                                                                                  \
    TYPE Get##NAME() const                                                                                   \
    {                                                                                                        \
        return F##NAME;                                                                                      \
    }                                                                                                        \
    void Set##NAME(TYPE Value)                                                                               \
    {                                                                                                        \
        F##NAME = Value;                                                                                     \
    }

class TSampleFont : public TPersistent
{
    VCL_CLASS
public:
    void Assign(const TPersistent* Source) override;
    SAMPLE_VALUE(std::uint8_t, Charset, 1)
    SAMPLE_VALUE(TSampleColor, Color, SampleWindowText)
    SAMPLE_VALUE(int, Height, -11)
    SAMPLE_VALUE(AnsiString, Name, {})
    SAMPLE_VALUE(TSampleFontStyles, Style, {})
    int GetSize() const { return -FHeight * 72 / 96; }
    void SetSize(int Size) { FHeight = -(Size * 96 / 72); }
};

class TSampleMargins : public TPersistent
{
    VCL_CLASS
public:
    SAMPLE_VALUE(int, Left, 3)
    SAMPLE_VALUE(int, Top, 3)
    SAMPLE_VALUE(int, Right, 3)
    SAMPLE_VALUE(int, Bottom, 3)
    TSampleFont* GetFont() { return &FFont; }

private:
    TSampleFont FFont;
};

class TSampleItems;

/// A component that others can stand in. Its name counts the calls that loading makes.
class TSampleControl : public TComponent
{
    VCL_CLASS
public:
    explicit TSampleControl(TComponent* Owner) : TComponent(Owner) {}
    ~TSampleControl() override;

    SAMPLE_VALUE(int, Left, 0)
    SAMPLE_VALUE(int, Top, 0)
    SAMPLE_VALUE(int, Width, 0)
    SAMPLE_VALUE(int, Height, 0)
    SAMPLE_VALUE(TSampleAlign, Align, TSampleAlign::saNone)
    SAMPLE_VALUE(TSampleAnchors, Anchors, TSampleAnchors::FromBits(3))
    SAMPLE_VALUE(TSampleControl*, Buddy, nullptr)
    SAMPLE_VALUE(AnsiString, Caption, {})
    SAMPLE_VALUE(TSampleColor, Color, SampleBtnFace)
    SAMPLE_VALUE(TSampleCursor, Cursor, {})
    SAMPLE_VALUE(bool, Enabled, true)
    SAMPLE_VALUE(AnsiString, Hint, {})
    SAMPLE_VALUE(bool, ParentColor, true)
    SAMPLE_VALUE(bool, ParentFont, true)
    SAMPLE_VALUE(bool, ShowHint, false)
    SAMPLE_VALUE(std::int16_t, TabOrder, -1)
    SAMPLE_VALUE(bool, TabStop, false)
    SAMPLE_VALUE(bool, Visible, true)
    TSampleFont* GetFont() { return &FFont; }
    TSampleMargins* GetMargins() { return &FMargins; }
    bool IsColorStored() const { return !FParentColor; }
    bool IsFontStored() const { return !FParentFont; }

    TNotifyEvent OnChange;
    TNotifyEvent OnClick;
    TSampleKeyEvent OnKey;

    const std::vector<TSampleControl*>& GetControls() const { return FControls; }
    int GetLoadedCount() const { return FLoadedCount; }

    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    TComponent* GetParentComponent() const override { return FParent; }
    bool HasParent() const override { return true; }
    void SetParentComponent(TComponent* Parent) override;
    void SetChildOrder(TComponent* Child, int Order) override;

protected:
    void Loaded() override;
    void Notification(TComponent* Component, TOperation Operation) override;

private:
    TSampleControl* FParent = nullptr;
    std::vector<TSampleControl*> FControls;
    TSampleFont FFont;
    TSampleMargins FMargins;
    int FLoadedCount = 0;
};

class TSamplePanel : public TSampleControl
{
    VCL_CLASS
public:
    using TSampleControl::TSampleControl;
    SAMPLE_VALUE(TSampleAlignment, Alignment, TSampleAlignment::taCenter)
    SAMPLE_VALUE(int, BevelWidth, 1)
};

class TSampleMemo : public TSampleControl
{
    VCL_CLASS
public:
    using TSampleControl::TSampleControl;
    TStrings* GetLines() { return &FLines; }
    void SetLines(TStrings* Lines) { FLines.Assign(Lines); }
    SAMPLE_VALUE(bool, WordWrap, true)

private:
    TStringList FLines;
};

class TSampleItem : public TCollectionItem
{
    VCL_CLASS
public:
    explicit TSampleItem(TCollection* Collection);
    ~TSampleItem() override;
    void Assign(const TPersistent* Source) override;

    SAMPLE_VALUE(TSampleAlignment, Alignment, TSampleAlignment::taLeft)
    SAMPLE_VALUE(AnsiString, Caption, {})
    SAMPLE_VALUE(TSampleControl*, Control, nullptr)
    SAMPLE_VALUE(double, Pos, 0)
    SAMPLE_VALUE(bool, Visible, true)
    SAMPLE_VALUE(int, Width, 50)
    TSampleFont* GetFont() { return &FFont; }
    TStrings* GetNotes() { return &FNotes; }
    TSampleItems* GetSubItems() { return FSubItems.get(); }
    TNotifyEvent OnClick;

private:
    TSampleFont FFont;
    TStringList FNotes;
    std::unique_ptr<TSampleItems> FSubItems;
};

class TSampleItems : public TOwnedCollection
{
    VCL_CLASS
public:
    explicit TSampleItems(TPersistent* Owner) : TOwnedCollection(Owner, TSampleItem::StaticClass()) {}
};

class TSampleGrid : public TSampleControl
{
    VCL_CLASS
public:
    using TSampleControl::TSampleControl;
    TSampleItems* GetColumns() { return &FColumns; }
    SAMPLE_VALUE(TSampleOptions, Options, TSampleOptions::FromBits(33))

private:
    TSampleItems FColumns{this};
};

/// Its constructor makes its children, as the frame of a program does.
class TSampleFrame : public TSampleControl
{
    VCL_CLASS
public:
    explicit TSampleFrame(TComponent* Owner);
};

class TSampleForm : public TSampleControl
{
    VCL_CLASS
public:
    explicit TSampleForm(TComponent* Owner) : TSampleControl(Owner) {}
    void GetChildren(const std::function<void(TComponent*)>& Receive, TComponent* Root) override;
    void SetChildOrder(TComponent* Child, int Order) override;

    void FormCreate(TObject*) { Calls += "FormCreate "; }
    void ButtonClick(TObject*) { Calls += "ButtonClick "; }
    void OkClick(TObject*) { Calls += "OkClick "; }
    void EditChange(TObject*) { Calls += "EditChange "; }
    void EditKey(TObject*, char Key) { Calls += AnsiString("EditKey ") + Key + " "; }
    void TimerTick(TObject*) { Calls += "TimerTick "; }
    void ColumnClick(TObject*) { Calls += "ColumnClick "; }

    AnsiString Calls;
};

void RegisterSampleClasses();

} // namespace vcl::tests
