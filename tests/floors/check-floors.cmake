# Compiles one-line files that include a header, each with the real compile
# command of a floor's own source (from compile_commands.json), and checks that
# an include of a floor it doesn't use fails as "not found", and that one of a
# floor it uses compiles, so the failures are for the right reason.
#   cmake -DBUILD_DIR=<build> -DSOURCE_DIR=<checkout> -P check-floors.cmake

file(STRINGS ${BUILD_DIR}/compile_commands.json commands REGEX "\"command\": ")
set(probe_dir ${BUILD_DIR}/floor-probes)
file(MAKE_DIRECTORY ${probe_dir})

function(probe floor header expect)
  set(command)
  foreach(line IN LISTS commands)
    if(line MATCHES "\"command\": \"(.* -o [^ ]+ -c ${SOURCE_DIR}/src/${floor}/[^ /]+\\.cpp)\"")
      set(command "${CMAKE_MATCH_1}")
      break()
    endif()
  endforeach()
  if(NOT command)
    message(SEND_ERROR "no compile command for a source of src/${floor}")
    return()
  endif()
  # JSON's \" and \\ back to the shell's.
  string(REPLACE "\\\\" "\x01" command "${command}")
  string(REPLACE "\\\"" "\"" command "${command}")
  string(REPLACE "\x01" "\\" command "${command}")
  string(REGEX REPLACE " -o [^ ]+ -c [^ ]+$" "" command "${command}")
  separate_arguments(args UNIX_COMMAND "${command}")

  string(MAKE_C_IDENTIFIER "${floor}_${header}" name)
  set(source ${probe_dir}/${name}.cpp)
  file(WRITE ${source} "#include \"${header}\"\n")
  execute_process(COMMAND ${args} -fsyntax-only ${source}
    WORKING_DIRECTORY ${BUILD_DIR} RESULT_VARIABLE result ERROR_VARIABLE errors OUTPUT_QUIET)
  if(expect STREQUAL "found" AND NOT result EQUAL 0)
    message(SEND_ERROR "${floor} should reach ${header}:\n${errors}")
  elseif(expect STREQUAL "not-found")
    if(result EQUAL 0)
      message(SEND_ERROR "${floor} reaches ${header}, a floor above it")
    elseif(NOT errors MATCHES "${header}: No such file")
      message(SEND_ERROR "${floor} including ${header} failed, but not as a missing file:\n${errors}")
    endif()
  endif()
endfunction()

# Floors it uses, directly or through another.
probe(drive model/Date.h found)
probe(playback timeline/MediaTime.h found)
probe(health crypt/KeyStore.h found)
# Higher floors, and neighbours it doesn't use.
probe(model vault/VaultIndex.h not-found)
probe(drive ui/UiBridge.h not-found)
probe(crypt unlock/Unlocker.h not-found)
probe(timeline playback/TrackPlayer.h not-found)
probe(export playback/SyncPlayerController.h not-found)
probe(playback engine/LiveEngine.h not-found)
probe(report playback/SyncPlayerController.h not-found)
probe(export report/IncidentReport.h not-found)
probe(engine state/AppState.h not-found)
probe(cli ui/UiBridge.h not-found)
probe(moments timeline/HardMoments.h found)
probe(timeline moments/EventActivity.h not-found)
probe(moments vault/VaultIndex.h not-found)
