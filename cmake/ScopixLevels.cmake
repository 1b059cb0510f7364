# SPDX-License-Identifier: MIT
# A library in levels: each folder is an OBJECT library of its own, which sees the headers of the levels that it
# links and of no other, so that an include against the arrows does not compile.
#
#     scopix_add_level(ScopixHost undo LINKS support Qt5::Widgets)
#
# makes the target ScopixHost_undo of the files in undo/, whose headers are included as "undo/UndoHistory.h" or, with
# PREFIX scopix, as <scopix/undo/UndoHistory.h>. LINKS names other levels by their folder and other libraries by their
# target; both are passed on to the levels above. scopix_join_levels() links all levels of a library into it.
function(scopix_level_target result library folder)
  string(REPLACE "/" "_" name "${folder}")
  set(${result} "${library}_${name}" PARENT_SCOPE)
endfunction()

function(scopix_add_level library folder)
  cmake_parse_arguments(PARSE_ARGV 2 arg "" "PREFIX" "LINKS")
  scopix_level_target(level ${library} "${folder}")
  file(GLOB_RECURSE sources CONFIGURE_DEPENDS ${folder}/*.cpp ${folder}/*.h ${folder}/*.qrc)
  list(FILTER sources EXCLUDE REGEX "/main\\.cpp$")
  add_library(${level} OBJECT ${sources})
  string(JOIN "/" prefix ${arg_PREFIX} "${folder}")
  scopix_include_root(${level} "${prefix}" "${CMAKE_CURRENT_SOURCE_DIR}/${folder}")
  target_link_libraries(${level} PRIVATE Scopix::settings)
  foreach(link IN LISTS arg_LINKS)
    scopix_level_target(below ${library} "${link}")
    if(TARGET ${below})
      target_link_libraries(${level} PUBLIC ${below})
    elseif(TARGET "${link}")
      target_link_libraries(${level} PUBLIC "${link}")
    else()
      message(FATAL_ERROR "${level} links \"${link}\", which is no level of ${library} declared before it and no target.")
    endif()
  endforeach()
  set_property(GLOBAL APPEND PROPERTY SCOPIX_LEVELS_OF_${library} ${level})
endfunction()

# Sets `result` to the targets of all levels of the library.
function(scopix_levels result library)
  get_property(levels GLOBAL PROPERTY SCOPIX_LEVELS_OF_${library})
  set(${result} ${levels} PARENT_SCOPE)
endfunction()

function(scopix_join_levels library)
  scopix_levels(levels ${library})
  target_link_libraries(${library} PRIVATE ${levels})
endfunction()
