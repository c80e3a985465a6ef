# Writes TABLE: one byte array for each of FILES below FOLDER, and a sorted list of them.

set(arrays "")
set(rows "")
set(number 0)
foreach(file IN LISTS FILES)
  file(READ ${FOLDER}/${file} bytes HEX)
  string(REGEX REPLACE "(................................)" "\\1\n" bytes "${bytes}")
  string(REGEX REPLACE "([0-9a-f][0-9a-f])" "0x\\1," bytes "${bytes}")
  file(SIZE ${FOLDER}/${file} size)
  string(APPEND arrays "alignas(16) constexpr unsigned char file${number}[] = {${bytes}0};\n")
  string(APPEND rows "    {\"${file}\", file${number}, ${size}},\n")
  math(EXPR number "${number} + 1")
endforeach()
file(WRITE ${TABLE} "#include \"platform/foundation/BundleKinds.h\"

namespace {
${arrays}
constexpr quorix::foundation::EmbeddedFile files[] = {
${rows}};
}  // namespace

namespace quorix::foundation {
std::span<const EmbeddedFile> embeddedFiles() { return files; }
}  // namespace quorix::foundation
")
