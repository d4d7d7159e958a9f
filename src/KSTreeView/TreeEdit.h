#pragma once

#include "vcl/controls/Edit.h"

class TCustomKSTreeView;

/// The editor that a tree view opens over a node's text. It stays centred over the node, three wide letters
/// wider than its text.
class TKSTVEdit : public vcl::TCustomEdit
{
    VCL_CLASS
public:
    explicit TKSTVEdit(vcl::TComponent* Owner);

    /// Takes size and place from the text, as after every change of it.
    void Changed();

protected:
    void Change() override;
    void KeyDown(std::uint16_t& Key, vcl::TShiftState Shift) override;
    void KeyPress(char32_t& Key) override;
    void WMKillFocus(vcl::TMessage& Message) override;
    void WMGetDlgCode(vcl::TMessage& Message) override;
    void CMWantSpecialKey(vcl::TMessage& Message) override;

private:
    TCustomKSTreeView* View() const;
};
