#include "ksform/Json.h"

#include <cstdio>

namespace ksform
{

std::string JsonString(const std::string& Text)
{
    std::string Result = "\"";
    for (const char Character : Text) {
        const auto Code = static_cast<unsigned char>(Character);
        if (Character == '"' || Character == '\\')
            Result += '\\';
        if (Code >= ' ') {
            Result += Character;
        } else {
            char Escape[8];
            std::snprintf(Escape, sizeof Escape, "\\u%04X", Code);
            Result += Escape;
        }
    }
    return Result + "\"";
}

} // namespace ksform
