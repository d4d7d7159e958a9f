#include "examples/gallery/Specimen.h"

using vcl::Published;

const vcl::TClass& TPart::StaticClass()
{
    static const vcl::TClass Class =
        vcl::DefineClass<TPart, TPersistent>("TPart", {Published<&TPart::GetSize, &TPart::SetSize>("Size")});
    return Class;
}

const vcl::TClass& TSpecimen::StaticClass()
{
    using T = TSpecimen;
    static const vcl::TClass Class = vcl::DefineClass<T, vcl::TComponent>(
        "TSpecimen", {
                         Published<&T::GetAmount, &T::SetAmount>("Amount"),
                         Published<&T::GetShade, &T::SetShade>("Shade"),
                         Published<&T::GetShades, &T::SetShades>("Shades"),
                         Published<&T::GetColor, &T::SetColor>("Color"),
                         Published<&T::GetDay, &T::SetDay>("Day").Type(vcl::DateType()),
                         Published<&T::GetPart>("Part"),
                         Published<&T::GetFriend, &T::SetFriend>("Friend"),
                         Published<&T::GetFixed>("Fixed"),
                         Published<&T::OnChange>("OnChange"),
                     });
    return Class;
}
