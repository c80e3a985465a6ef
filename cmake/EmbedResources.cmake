# embed_resources(TARGET FOLDER): compiles every file below FOLDER into TARGET, so that a host does
# not ship loose files. platform/foundation/BundleKinds.h declares the table.

function(embed_resources target folder)
  file(GLOB_RECURSE files CONFIGURE_DEPENDS RELATIVE ${folder} ${folder}/*)
  list(FILTER files EXCLUDE REGEX "(README|LICENSE|OFL)[^/]*$")
  set(table ${CMAKE_CURRENT_BINARY_DIR}/${target}_resources.cpp)
  set(absolute ${files})
  list(TRANSFORM absolute PREPEND ${folder}/)
  add_custom_command(
    OUTPUT ${table}
    COMMAND ${CMAKE_COMMAND} -DFOLDER=${folder} "-DFILES=${files}" -DTABLE=${table}
            -P ${PROJECT_SOURCE_DIR}/cmake/WriteResourceTable.cmake
    DEPENDS ${absolute} ${PROJECT_SOURCE_DIR}/cmake/WriteResourceTable.cmake
    VERBATIM)
  target_sources(${target} PRIVATE ${table})
endfunction()
