# cmake -DOUTPUT=FormTexts.cpp "-DFILES=a.dfm;b.dfm" -P KSEmbedForms.cmake
#
# Writes a source file with FormText("a"): the text of a.dfm, so that a program needs no file beside it.
set(code "#include <string_view>\n\nstd::string_view FormText(std::string_view Name);\n\n")
string(APPEND code "std::string_view FormText(std::string_view Name)\n{\n")
foreach(file IN LISTS FILES)
    get_filename_component(name "${file}" NAME_WE)
    file(READ "${file}" text)
    string(APPEND code "    if (Name == \"${name}\")\n        return R\"form(${text})form\";\n")
endforeach()
string(APPEND code "    return {};\n}\n")
file(WRITE "${OUTPUT}" "${code}")
