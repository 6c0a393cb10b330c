# Run after the standalone program is linked: it must reach libcurl and libsystemd only through
# its forwarders (tools/tvpolicy/standalone/*OnDemand.cpp). A function of theirs that some object
# calls and no forwarder defines would be left to the dynamic loader, and the library would then
# be needed at every start; the program must name none.
#   cmake -DNM=<nm> -DPROGRAM=<file> -P CheckOnDemandForwarders.cmake
execute_process(COMMAND "${NM}" -D --undefined-only "${PROGRAM}"
  OUTPUT_VARIABLE _undefined RESULT_VARIABLE _status)
if(NOT _status EQUAL 0)
  message(FATAL_ERROR "cannot list the symbols of ${PROGRAM}")
endif()
string(REGEX MATCHALL "[ \t](curl|sd)_[A-Za-z0-9_]+" _missing "${_undefined}")
if(_missing)
  string(REPLACE ";" "," _missing "${_missing}")
  message(FATAL_ERROR "${PROGRAM} calls functions of a library it opens on demand that have no forwarder "
                      "in tools/tvpolicy/standalone/:${_missing}")
endif()
