# quorix_unity(TARGET): with CMAKE_UNITY_BUILD, compiles the sources of a folder, or of folders with
# the same includes, as one file. This is faster, because compilers spend most of their time on
# those headers. A host may set it; the preset "demo" does. Other presets compile each file alone,
# which finds missing includes.

# Compiles the files of all other targets alone: they may have the same local names.
set(quorix_unity_build ${CMAKE_UNITY_BUILD})
set(CMAKE_UNITY_BUILD OFF)

# Files that are compiled alone: they have the same local names as another file, or heavy headers,
# or members of a local type, for which GCC warns in an included file.
set(quorix_compiled_alone
  examples/shop/pictures/WidgetPictures.cpp
  examples/shop/pictures/WindowPictures.cpp
  platform/foundation/HTTPResponseReader.cpp
  platform/hosting/ViewHost.cpp
  platform/swiftui/TreePrinter.cpp
  qt/text/QtTextEngine.cpp)

function(quorix_unity target)
  if(NOT quorix_unity_build)
    return()
  endif()
  set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_MODE GROUP)
  get_target_property(sources ${target} SOURCES)
  foreach(source IN LISTS sources)
    cmake_path(ABSOLUTE_PATH source)
    cmake_path(RELATIVE_PATH source BASE_DIRECTORY ${PROJECT_SOURCE_DIR} OUTPUT_VARIABLE path)
    cmake_path(GET path PARENT_PATH folder)
    if(path MATCHES "\\.cpp$" AND NOT path IN_LIST quorix_compiled_alone)
      if(folder MATCHES "^platform/(foundation|graphics)$")
        set(group platform_data)
      elseif(folder MATCHES "^(platform|examples/shop|qt/web)(/|$)")
        set(group ${CMAKE_MATCH_1})
      elseif(folder MATCHES "^qt/(network|painting|text)$")
        set(group qt)
      else()
        set(group ${folder})
      endif()
      string(MAKE_C_IDENTIFIER "${group}" group)
      set_source_files_properties(${source} PROPERTIES UNITY_GROUP ${group})
    endif()
  endforeach()
endfunction()
