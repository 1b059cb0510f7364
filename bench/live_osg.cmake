# SPDX-License-Identifier: MIT
if(TARGET ScopixLiveOsg)
  find_package(OpenSceneGraph 3.6.5 EXACT REQUIRED COMPONENTS osgViewer osgGA osgText osgUtil osgDB)
  scopix_add_bench(live_osg ScopixLiveOsg benchmark::benchmark)
  target_include_directories(bench_live_osg SYSTEM PRIVATE ${OPENSCENEGRAPH_INCLUDE_DIRS})
  target_link_libraries(bench_live_osg PRIVATE ${OPENSCENEGRAPH_LIBRARIES})
endif()
