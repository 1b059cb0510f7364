# SPDX-License-Identifier: MIT
# Compiles i18n/CATALOGUE_*.ts into resources of the target, ":/i18n/CATALOGUE_LANGUAGE.qm".
function(scopix_add_translations target catalogue)
  file(GLOB texts CONFIGURE_DEPENDS "${Scopix_SOURCE_DIR}/i18n/${catalogue}_*.ts")
  set(entries "")
  set(compiled "")
  foreach(text IN LISTS texts)
    get_filename_component(name "${text}" NAME_WE)
    set(binary "${CMAKE_CURRENT_BINARY_DIR}/${name}.qm")
    add_custom_command(OUTPUT "${binary}" DEPENDS "${text}" VERBATIM
      COMMAND Qt5::lrelease -silent "${text}" -qm "${binary}" COMMENT "Translating ${name}")
    list(APPEND compiled "${binary}")
    string(APPEND entries "  <file alias=\"${name}.qm\">${binary}</file>\n")
  endforeach()
  set(resources "${CMAKE_CURRENT_BINARY_DIR}/${catalogue}_texts.qrc")
  file(CONFIGURE OUTPUT "${resources}" @ONLY CONTENT
    "<RCC><qresource prefix=\"/i18n\">\n@entries@</qresource></RCC>\n")
  set(source "${CMAKE_CURRENT_BINARY_DIR}/qrc_${catalogue}_texts.cpp")
  add_custom_command(OUTPUT "${source}" DEPENDS "${resources}" ${compiled} VERBATIM
    COMMAND Qt5::rcc --name "${catalogue}_texts" "${resources}" -o "${source}")
  set_source_files_properties("${source}" PROPERTIES SKIP_AUTOMOC ON SKIP_PRECOMPILE_HEADERS ON)
  target_sources(${target} PRIVATE "${source}")
endfunction()
