# SPDX-License-Identifier: MIT
# The headers that a library offers: installed, and each one of use by itself.

# scopix_public_headers(TARGET PREFIX FOLDER NAME...) installs the headers of these names, which others include as
# <PREFIX/...>. A name stands for its file wherever below FOLDER it lies. No public header includes one of the same
# library that is not public: it would not compile where it is installed.
function(scopix_public_headers target prefix folder)
  file(GLOB_RECURSE files RELATIVE "${folder}" CONFIGURE_DEPENDS "${folder}/*.h")
  set(headers)
  foreach(name IN LISTS ARGN)
    set(found ${files})
    list(FILTER found INCLUDE REGEX "(^|/)${name}$")
    list(LENGTH found count)
    if(NOT count EQUAL 1)
      message(FATAL_ERROR "${count} files of ${folder} are named ${name}, which is listed as a public header of ${target}.")
    endif()
    list(APPEND headers ${found})
  endforeach()
  foreach(header IN LISTS headers)
    scopix_check_includes("${prefix}" "${folder}" "${header}" "${headers}")
    get_filename_component(subfolder "${header}" DIRECTORY)
    set_property(GLOBAL APPEND PROPERTY SCOPIX_PUBLIC_HEADERS "${folder}/${header}")
    install(FILES "${folder}/${header}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/${prefix}/${subfolder}")
  endforeach()
  scopix_compile_headers(${target} "${prefix}" ${headers})
endfunction()

function(scopix_check_includes prefix folder header public)
  file(STRINGS "${folder}/${header}" includes REGEX "^#include <${prefix}/")
  foreach(include IN LISTS includes)
    string(REGEX REPLACE "^#include <${prefix}/([^>]+)>.*" "\\1" include "${include}")
    if(EXISTS "${folder}/${include}" AND NOT include IN_LIST public)
      message(FATAL_ERROR "${prefix}/${header} is public and includes ${prefix}/${include}, which is not.")
    endif()
  endforeach()
endfunction()

# The target public_headers compiles each header alone, with the warnings that are errors here. It is no part of a
# build; tools/check-headers builds it.
function(scopix_compile_headers target prefix)
  set(sources)
  foreach(header IN LISTS ARGN)
    set(source "${PROJECT_BINARY_DIR}/public_headers/${target}/${header}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include <${prefix}/${header}>\n" @ONLY)
    list(APPEND sources "${source}")
  endforeach()
  add_library(${target}_public_headers OBJECT EXCLUDE_FROM_ALL ${sources})
  target_link_libraries(${target}_public_headers PRIVATE ${target} Scopix::settings)
  target_compile_options(${target}_public_headers PRIVATE -g0 -O0)
  if(NOT TARGET public_headers)
    add_custom_target(public_headers)
  endif()
  add_dependencies(public_headers ${target}_public_headers)
endfunction()
