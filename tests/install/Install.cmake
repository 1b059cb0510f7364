# SPDX-License-Identifier: MIT
# cmake -Dbuild=FOLDER -Dprefix=FOLDER -P Install.cmake: installs into an empty folder, so that nothing stale hides a gap.
file(REMOVE_RECURSE "${prefix}")
execute_process(COMMAND "${CMAKE_COMMAND}" --install "${build}" --prefix "${prefix}"
  COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
