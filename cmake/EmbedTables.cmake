# Generates OUTPUT, a C++ source whose NAMESPACE::embeddedTables(), declared in HEADER, returns the text
# of each of the TABLES.
set(source "// The localised texts; made by the build from resources/.\n")
string(APPEND source "#include \"${HEADER}\"\n\n")
string(APPEND source "namespace ${NAMESPACE} {\n\n")
string(APPEND source "using brisel::platform::common::EmbeddedTable;\n\n")
string(APPEND source "// NOLINTNEXTLINE(readability-function-size): a table.\n"
       "const std::vector<EmbeddedTable>& embeddedTables() {\n")
string(APPEND source "    static const std::vector<EmbeddedTable> tables{\n")
foreach(table IN LISTS TABLES)
  get_filename_component(folder ${table} DIRECTORY)
  get_filename_component(language ${folder} NAME_WE)
  file(READ ${table} text)
  string(APPEND source "        {\"${language}\", R\"strings(${text})strings\"},\n")
endforeach()
string(APPEND source "    };\n    return tables;\n}\n\n}  // namespace ${NAMESPACE}\n")
file(WRITE ${OUTPUT} "${source}")
