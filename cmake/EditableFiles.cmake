# Files that a hospital may edit where they lie: the setup file and the printed forms. Laying them anew keeps an edited
# one and puts the new version beside it as NAME.new. ".shipped" remembers the checksum of what was laid last, so that a
# file nobody edited follows the new version.

# tarnwell_lay_editable(SOURCE FOLDER TRUST): TRUST says whether a file of which nothing is remembered counts as
# unedited. What was laid is appended to TARNWELL_LAID.
function(tarnwell_lay_editable source folder trust)
  get_filename_component(name ${source} NAME)
  set(target ${folder}/${name})
  set(memory ${folder}/.shipped/${name}.sha256)
  file(SHA256 ${source} offered)
  set(remembered "")
  if(EXISTS ${memory})
    file(READ ${memory} remembered)
  endif()

  set(place ${target})
  if(EXISTS ${target})
    file(SHA256 ${target} present)
    if(present STREQUAL offered)
      set(place "")
    elseif(IS_SYMLINK ${target} OR NOT (present STREQUAL remembered OR (trust AND remembered STREQUAL "")))
      set(place ${target}.new)
      message(STATUS "Kept, because it was edited: ${target}; the new version is ${name}.new")
    endif()
  endif()

  if(place)
    file(MAKE_DIRECTORY ${folder})
    file(COPY_FILE ${source} ${place} ONLY_IF_DIFFERENT)
    file(CHMOD ${place} PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
    set(TARNWELL_LAID
        ${TARNWELL_LAID} ${place}
        PARENT_SCOPE)
  endif()
  if(NOT remembered STREQUAL offered)
    file(WRITE ${memory} ${offered})
  endif()
endfunction()
