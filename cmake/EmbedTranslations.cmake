# Writes a C++ source that holds compiled translations.
#
#   FILES   the files, named <name>_<language>.qm
#   NAME    the <name> of them
#   OUTPUT  the source

set(arrays)
set(entries)
foreach(file IN LISTS FILES)
    get_filename_component(language ${file} NAME_WE)
    string(REPLACE "${NAME}_" "" language ${language})
    file(READ ${file} bytes HEX)
    string(REGEX REPLACE "(..)" "0x\\1," bytes "${bytes}")
    string(APPEND arrays "constexpr unsigned char ${language}[] = {${bytes}};\n")
    string(APPEND entries "    {\"${language}\", ${language}, sizeof ${language}},\n")
endforeach()
file(WRITE ${OUTPUT} "#include \"embeddedtranslations.h\"

namespace {

${arrays}
constexpr corvane::EmbeddedTranslation translations[] = {
${entries}    {nullptr, nullptr, 0},
};

} // namespace

const corvane::EmbeddedTranslation *corvane::embeddedTranslations()
{
    return translations;
}
")
