# Run after the standalone program is linked: it must reach libcurl only through its forwarders.
# A libcurl function that some object calls and no forwarder defines would be left to the
# dynamic loader, and libcurl would then be needed at every start; the program must name neither.
#   cmake -DNM=<nm> -DPROGRAM=<file> -P CheckCurlForwarders.cmake
execute_process(COMMAND "${NM}" -D --undefined-only "${PROGRAM}"
  OUTPUT_VARIABLE _undefined RESULT_VARIABLE _status)
if(NOT _status EQUAL 0)
  message(FATAL_ERROR "cannot list the symbols of ${PROGRAM}")
endif()
string(REGEX MATCHALL "[ \t]curl_[A-Za-z0-9_]+" _missing "${_undefined}")
if(_missing)
  string(REPLACE ";" "," _missing "${_missing}")
  message(FATAL_ERROR "${PROGRAM} calls libcurl functions that have no forwarder in "
                      "tools/tvpolicy/standalone/CurlOnDemand.cpp:${_missing}")
endif()
