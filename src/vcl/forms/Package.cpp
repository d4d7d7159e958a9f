#include "vcl/forms/Package.h"

#include <dlfcn.h>

#include <algorithm>
#include <cstdlib>
#include <set>
#include <vector>

#include "vcl/system/Exception.h"

namespace vcl
{

namespace
{

using TRegister = void (*)();

/// Names of the library file: the version this one is built for first.
std::vector<AnsiString> FileNames(const AnsiString& Name)
{
    return {"lib" + Name + ".so.1", "lib" + Name + ".so"};
}

/// The folder of the library that this code is in, with a slash behind it; empty when it is not known. The
/// system's own search begins there too, but not when another library has taken dlopen's place, as checkers
/// of memory do.
AnsiString OwnFolder()
{
    Dl_info Info{};
    if (dladdr(reinterpret_cast<const void*>(&LoadPackage), &Info) == 0 || !Info.dli_fname)
        return {};
    const AnsiString File = Info.dli_fname;
    return File.substr(0, File.rfind('/') + 1);
}

/// Where to look, in order: whole paths first, then names for the system's own search.
std::vector<AnsiString> Candidates(const AnsiString& Name)
{
    std::vector<AnsiString> Result;
    const char* const Path = std::getenv("KSSUITE_PACKAGE_PATH");
    AnsiString Folders = Path ? Path : "";
    while (!Folders.empty()) {
        const std::size_t Colon = std::min(Folders.find(':'), Folders.size());
        const AnsiString Folder = Folders.substr(0, Colon);
        Folders.erase(0, Colon + 1);
        if (!Folder.empty())
            for (const AnsiString& File : FileNames(Name))
                Result.push_back(Folder + "/" + File);
    }
    const AnsiString Own = OwnFolder();
    for (const AnsiString& File : FileNames(Name))
        if (!Own.empty())
            Result.push_back(Own + File);
    for (const AnsiString& File : FileNames(Name))
        Result.push_back(File);
    return Result;
}

bool IsIdentifier(const AnsiString& Name)
{
    const auto IsLetter = [](char Character) {
        return (Character >= 'A' && Character <= 'Z') || (Character >= 'a' && Character <= 'z') ||
               Character == '_';
    };
    const auto IsAllowed = [&](char Character) {
        return IsLetter(Character) || (Character >= '0' && Character <= '9');
    };
    return !Name.empty() && IsLetter(Name[0]) && std::all_of(Name.begin(), Name.end(), IsAllowed);
}

[[noreturn]] void Refuse(const AnsiString& Name, const AnsiString& Reason)
{
    throw EPackageError("Cannot load package " + Name + ": " + Reason);
}

void* OpenLibrary(const AnsiString& Name)
{
    AnsiString Reason;
    for (const AnsiString& File : Candidates(Name)) {
        if (void* const Library = dlopen(File.c_str(), RTLD_NOW | RTLD_GLOBAL))
            return Library;
        // The first candidate says most: the others differ only in the place or the version.
        if (const char* const Error = dlerror(); Error && Reason.empty())
            Reason = Error;
    }
    Refuse(Name, Reason);
}

} // namespace

void LoadPackage(const AnsiString& Name)
{
    static std::set<AnsiString> Loaded;
    if (!IsIdentifier(Name))
        throw EPackageError("Cannot load package: \"" + Name + "\" is not a package's name");
    if (Loaded.count(Name) > 0)
        return;
    // Never closed: instances, class descriptions and exceptions of the package may live to the very end.
    void* const Library = OpenLibrary(Name);
    const AnsiString Entry = "Register" + Name;
    const auto Register = reinterpret_cast<TRegister>(dlsym(Library, Entry.c_str()));
    if (!Register)
        Refuse(Name, "the library has no function " + Entry);
    Register();
    Loaded.insert(Name);
}

} // namespace vcl
