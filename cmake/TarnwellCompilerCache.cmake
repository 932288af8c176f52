# Where ccache is installed, nothing is compiled twice, in this folder or in another checkout of the same sources.
find_program(TARNWELL_CCACHE ccache)
if(TARNWELL_CCACHE AND NOT CMAKE_CXX_COMPILER_LAUNCHER)
  # Precompiled headers need the two liberties; paths are kept relative, so that every checkout has the same ones.
  set(CMAKE_CXX_COMPILER_LAUNCHER
      ${CMAKE_COMMAND}
      -E
      env
      CCACHE_SLOPPINESS=pch_defines,time_macros
      CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}
      CCACHE_NOHASHDIR=1
      ${TARNWELL_CCACHE})
endif()
