# SPDX-License-Identifier: MIT
# Compiler settings, carried by one interface library that every target of the project links.

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
# The plug-in is looked for beside the program, as in an installed tree.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${PROJECT_BINARY_DIR}/lib")

find_program(SCOPIX_CCACHE ccache)
if(SCOPIX_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  set(CMAKE_CXX_COMPILER_LAUNCHER
      "${CMAKE_COMMAND}" -E env "CCACHE_SLOPPINESS=pch_defines,time_macros,include_file_mtime,include_file_ctime"
      "${SCOPIX_CCACHE}")
endif()

add_library(scopix_settings INTERFACE)
add_library(Scopix::settings ALIAS scopix_settings)
target_compile_options(scopix_settings INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Woverloaded-virtual -Wnon-virtual-dtor
  # Whoever packages Scopix compiles with flags that warn of more.
  $<$<BOOL:${SCOPIX_WARNINGS_ARE_ERRORS}>:-Werror>)
# Clang puts the sanitizers' runtime into programs alone, so that a library's calls of it stay open.
if(NOT (SCOPIX_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "Clang"))
  target_link_options(scopix_settings INTERFACE -Wl,--no-undefined)
endif()
target_compile_definitions(scopix_settings INTERFACE QT_DISABLE_DEPRECATED_BEFORE=0x050F00)
if(SCOPIX_CCACHE)
  target_compile_options(scopix_settings INTERFACE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
endif()
if(SCOPIX_SANITIZE)
  target_compile_options(scopix_settings INTERFACE
    -fsanitize=${SCOPIX_SANITIZE} -fno-omit-frame-pointer -fno-sanitize-recover=all
    # GCC 12 sees uninitialized members in std::regex and std::function once it has instrumented them.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  target_link_options(scopix_settings INTERFACE -fsanitize=${SCOPIX_SANITIZE})
endif()

# Headers are included as <xsg/...> and <scopix/...>. Each library sees, through these links, only the
# include roots it links, so an include against the arrows does not compile.
function(scopix_include_root target prefix folder)
  set(root "${PROJECT_BINARY_DIR}/include/${target}")
  get_filename_component(parent "${root}/${prefix}" DIRECTORY)
  file(MAKE_DIRECTORY "${parent}")
  file(CREATE_LINK "${folder}" "${root}/${prefix}" SYMBOLIC)
  target_include_directories(${target} PUBLIC
    $<BUILD_INTERFACE:${root}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
endfunction()

# CMake 3.25 does not run moc again when a file joins a target or leaves it; without its time stamp it
# does. Call it once all targets are there.
function(scopix_watch_sources folder)
  get_property(targets DIRECTORY "${folder}" PROPERTY BUILDSYSTEM_TARGETS)
  foreach(target IN LISTS targets)
    get_target_property(automoc ${target} AUTOMOC)
    if(automoc)
      get_target_property(sources ${target} SOURCES)
      get_target_property(binary_dir ${target} BINARY_DIR)
      if(NOT "${sources}" STREQUAL "${SCOPIX_SOURCES_OF_${target}}")
        file(REMOVE "${binary_dir}/${target}_autogen/timestamp")
        set(SCOPIX_SOURCES_OF_${target} "${sources}" CACHE INTERNAL "Sources of the latest configuration")
      endif()
    endif()
  endforeach()
  get_property(subfolders DIRECTORY "${folder}" PROPERTY SUBDIRECTORIES)
  foreach(subfolder IN LISTS subfolders)
    scopix_watch_sources("${subfolder}")
  endforeach()
endfunction()
