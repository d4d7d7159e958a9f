#include "vcl/system/Object.h"

#include <string_view>

namespace vcl
{

bool TClass::operator==(const TClass& Other) const
{
    return this == &Other || std::string_view(Name) == Other.Name;
}

bool TClass::InheritsFrom(const TClass& Ancestor) const
{
    for (const TClass* Class = this; Class; Class = Class->Parent)
        if (*Class == Ancestor)
            return true;
    return false;
}

const TClass& TObject::StaticClass()
{
    static const TClass Class{"TObject"};
    return Class;
}

void TObject::operator delete(TObject* Object, std::destroying_delete_t)
{
    Object->BeforeDestruction();
    void* const Memory = dynamic_cast<void*>(Object);
    Object->~TObject();
    ::operator delete(Memory);
}

} // namespace vcl
