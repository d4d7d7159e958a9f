#include "KSTreeView/interaction/TypeAhead.h"

namespace treeview
{

namespace
{

vcl::AnsiString Encoded(char32_t Key)
{
    vcl::AnsiString Text;
    if (Key < 0x80) {
        Text += static_cast<char>(Key);
    } else if (Key < 0x800) {
        Text += static_cast<char>(0xC0 | (Key >> 6));
        Text += static_cast<char>(0x80 | (Key & 0x3F));
    } else if (Key < 0x10000) {
        Text += static_cast<char>(0xE0 | (Key >> 12));
        Text += static_cast<char>(0x80 | ((Key >> 6) & 0x3F));
        Text += static_cast<char>(0x80 | (Key & 0x3F));
    } else {
        Text += static_cast<char>(0xF0 | (Key >> 18));
        Text += static_cast<char>(0x80 | ((Key >> 12) & 0x3F));
        Text += static_cast<char>(0x80 | ((Key >> 6) & 0x3F));
        Text += static_cast<char>(0x80 | (Key & 0x3F));
    }
    return Text;
}

} // namespace

const vcl::AnsiString& TTypeAhead::Type(char32_t Key, std::uint64_t Now)
{
    if (Now - FLast > Pause)
        FTyped.clear();
    FLast = Now;
    const vcl::AnsiString Typed = Encoded(Key);
    if (FTyped.empty()) {
        FFirst = Typed;
        FIsRepeat = true;
    }
    FIsRepeat = FIsRepeat && Typed == FFirst;
    FTyped += Typed;
    return FTyped;
}

bool BeginsWith(const vcl::AnsiString& Text, const vcl::AnsiString& Prefix)
{
    return Text.size() >= Prefix.size() &&
           vcl::SameText(std::string_view(Text).substr(0, Prefix.size()), Prefix);
}

} // namespace treeview
