# SPDX-License-Identifier: MIT
scopix_add_bench(world_actions Scopix::xsg benchmark::benchmark Epoxy::Epoxy)

# Beside OpenSceneGraph where it is installed; the product knows nothing of it.
find_package(OpenSceneGraph QUIET COMPONENTS osgViewer osgUtil osgDB)
if(OPENSCENEGRAPH_FOUND)
  scopix_add_bench(world_beside_osg Scopix::xsg benchmark::benchmark Epoxy::Epoxy ${OPENSCENEGRAPH_LIBRARIES} ${CMAKE_DL_LIBS})
  target_include_directories(bench_world_beside_osg SYSTEM PRIVATE ${OPENSCENEGRAPH_INCLUDE_DIRS})
else()
  message(STATUS "OpenSceneGraph is not installed: the benchmark beside it is left out")
endif()
