// Classes by name.

#include <map>

#include "vcl/classes/Component.h"

namespace vcl
{

namespace
{

/// In the order of their names, so that what lists them is the same everywhere.
std::map<AnsiString, const TClass*>& Registry()
{
    static std::map<AnsiString, const TClass*> Classes;
    return Classes;
}

} // namespace

void RegisterClass(const TClass& Class)
{
    const auto [Place, IsNew] = Registry().try_emplace(LowerCase(Class.Name), &Class);
    if (!IsNew && !(*Place->second == Class))
        throw EFilerError(AnsiString("A class named ") + Class.Name + " already exists");
}

void RegisterClasses(std::initializer_list<const TClass*> Classes)
{
    for (const TClass* Class : Classes)
        RegisterClass(*Class);
}

const TClass* GetClass(std::string_view Name)
{
    const auto Found = Registry().find(LowerCase(Name));
    return Found == Registry().end() ? nullptr : Found->second;
}

const TClass& FindClass(std::string_view Name)
{
    const TClass* const Class = GetClass(Name);
    if (!Class)
        throw EClassNotFound("Class " + AnsiString(Name) + " not found");
    return *Class;
}

std::vector<const TClass*> RegisteredClasses()
{
    std::vector<const TClass*> Result;
    for (const auto& [Name, Class] : Registry())
        Result.push_back(Class);
    return Result;
}

} // namespace vcl
