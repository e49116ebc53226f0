# Fails when a lower floor of the core includes a higher one. The object
# contract (document/) and the file format (resfile/) know no kind and no
# registry; a kind (objects/) knows no registry (screen/). Runs at configure
# time (include()) and at build time (cmake -P), with SOURCE_DIR set.
set(floor_rules
  "document|objects/|screen/"
  "resfile|objects/|screen/"
  "objects|screen/")
set(floor_bad "")
foreach(rule ${floor_rules})
  string(REPLACE "|" ";" parts "${rule}")
  list(GET parts 0 floor_dir)
  list(SUBLIST parts 1 -1 forbidden)
  file(GLOB_RECURSE floor_files ${SOURCE_DIR}/${floor_dir}/*.cpp ${SOURCE_DIR}/${floor_dir}/*.h)
  foreach(f ${floor_files})
    foreach(up ${forbidden})
      file(STRINGS ${f} up_lines REGEX "^[ \t]*#[ \t]*include[ \t]*\"${up}")
      if(up_lines)
        list(APPEND floor_bad "${f}: ${up_lines}")
      endif()
    endforeach()
  endforeach()
endforeach()
if(floor_bad)
  message(FATAL_ERROR "A floor of the core includes one above it:\n${floor_bad}")
endif()
