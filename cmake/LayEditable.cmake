# Lays one editable file in the build folder: cmake -DSOURCE=… -DFOLDER=… -P LayEditable.cmake. Build folders of the time
# before versions were remembered hold nothing that could be told from an edited file; there the new version wins.
cmake_minimum_required(VERSION 3.25)
include(${CMAKE_CURRENT_LIST_DIR}/EditableFiles.cmake)

tarnwell_lay_editable(${SOURCE} ${FOLDER} ON)
# Younger than its source, so that the build has nothing left to do here.
get_filename_component(name ${SOURCE} NAME)
execute_process(COMMAND ${CMAKE_COMMAND} -E compare_files ${SOURCE} ${FOLDER}/${name} RESULT_VARIABLE differs)
if(NOT differs)
  file(TOUCH ${FOLDER}/${name})
endif()
