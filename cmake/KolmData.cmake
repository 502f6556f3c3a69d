# kolm_data_target(NAME SOURCE_DIR DEST_DIR): a target that copies the
# installation data (demo project, templates, help) into the build tree, so a
# build runs as an installed program would.
#
# Every file gets its own rule: a file is copied again only when its source
# changed (or its copy is missing), so changes the program made to the demo
# project in the build tree survive rebuilds until the repository's file
# changes. Subfolders and names with blanks are fine. A file added to the
# source folder is picked up at the next build (the glob re-runs); a file
# removed there stays in the build tree until it is deleted by hand.
function(kolm_data_target name source_dir dest_dir)
  file(GLOB_RECURSE entries CONFIGURE_DEPENDS LIST_DIRECTORIES true "${source_dir}/*")
  set(outputs "")
  set(dirs "${dest_dir}")
  foreach(entry IN LISTS entries)
    file(RELATIVE_PATH rel "${source_dir}" "${entry}")
    set(dest "${dest_dir}/${rel}")
    if(IS_DIRECTORY "${entry}")
      list(APPEND dirs "${dest}")
      continue()
    endif()
    get_filename_component(dest_parent "${dest}" DIRECTORY)
    add_custom_command(
      OUTPUT "${dest}"
      COMMAND ${CMAKE_COMMAND} -E make_directory "${dest_parent}"
      COMMAND ${CMAKE_COMMAND} -E copy "${entry}" "${dest}"
      COMMAND ${CMAKE_COMMAND} -E touch_nocreate "${dest}"
      DEPENDS "${entry}"
      COMMENT "Programmdaten: ${rel}"
      VERBATIM)
    list(APPEND outputs "${dest}")
  endforeach()
  # Empty folders count too; making them is cheap, so it runs every build.
  add_custom_target(${name} ALL
    COMMAND ${CMAKE_COMMAND} -E make_directory ${dirs}
    DEPENDS ${outputs}
    VERBATIM)
endfunction()
