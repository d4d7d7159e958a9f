#pragma once

#include "vcl/classes/Collection.h"
#include "vcl/controls/PeerControl.h"

namespace vcl
{

class TStatusBar;

enum class TStatusPanelBevel { pbNone, pbLowered, pbRaised };
template <>
struct TypeTraits<TStatusPanelBevel> {
    static const TTypeInfo& Info();
};

/// One field of a status bar.
class TStatusPanel : public TCollectionItem
{
    VCL_CLASS
public:
    using TCollectionItem::TCollectionItem;

    TAlignment GetAlignment() const { return FAlignment; }
    void SetAlignment(TAlignment Value) { Change(FAlignment, Value); }
    TStatusPanelBevel GetBevel() const { return FBevel; }
    void SetBevel(TStatusPanelBevel Value) { Change(FBevel, Value); }
    const AnsiString& GetText() const { return FText; }
    void SetText(const AnsiString& Value) { Change(FText, Value); }
    /// Pixels; the last panel takes what is left.
    int GetWidth() const { return FWidth; }
    void SetWidth(int Value) { Change(FWidth, Value); }

    void Assign(const TPersistent* Source) override;
    AnsiString GetDisplayName() const override;

private:
    template <class T>
    void Change(T& Field, const T& Value)
    {
        if (Field == Value)
            return;
        Field = Value;
        Changed(false);
    }

    AnsiString FText;
    int FWidth = 50;
    TAlignment FAlignment = TAlignment::taLeftJustify;
    TStatusPanelBevel FBevel = TStatusPanelBevel::pbLowered;
};

/// The fields of a status bar, from left to right.
class TStatusPanels : public TOwnedCollection
{
    VCL_CLASS
public:
    explicit TStatusPanels(TStatusBar* StatusBar);

    TStatusPanel* Add() { return static_cast<TStatusPanel*>(TCollection::Add()); }
    TStatusPanel* GetItem(int Index) const { return static_cast<TStatusPanel*>(TCollection::GetItem(Index)); }
    TStatusPanel* operator[](int Index) const { return GetItem(Index); }

protected:
    void Update(TCollectionItem* Item) override;

private:
    TStatusBar* FStatusBar;
};

/// The line at the bottom of a form that tells about its state.
class TStatusBar : public TPeerControl
{
    VCL_CLASS
public:
    explicit TStatusBar(TComponent* Owner);
    ~TStatusBar() override;

    /// Kept for form files.
    bool GetAutoHint() const { return FAutoHint; }
    void SetAutoHint(bool Value) { FAutoHint = Value; }
    /// True: the font is the system's, and form files do not store one.
    bool GetUseSystemFont() const { return FUseSystemFont; }
    void SetUseSystemFont(bool Value) { FUseSystemFont = Value; }
    bool IsOwnFontStored() const { return !FUseSystemFont && !GetParentFont(); }
    TStatusPanels* GetPanels() const { return FPanels.get(); }
    void SetPanels(const TStatusPanels* Value) { FPanels->Assign(Value); }
    /// True: SimpleText alone instead of the panels.
    bool GetSimplePanel() const { return FSimplePanel; }
    void SetSimplePanel(bool Value);
    const AnsiString& GetSimpleText() const { return FSimpleText; }
    void SetSimpleText(const AnsiString& Value);
    bool GetSizeGrip() const { return FSizeGrip; }
    void SetSizeGrip(bool Value);

    /// Called by the panels.
    void PanelsChanged();

protected:
    void ApplyState() override;

private:
    std::unique_ptr<TStatusPanels> FPanels;
    AnsiString FSimpleText;
    bool FAutoHint = false;
    bool FUseSystemFont = true;
    bool FSimplePanel = false;
    bool FSizeGrip = true;
};

} // namespace vcl
