# cmake -DBUILD_DIR=... -DWORK_DIR=... -DAPP_DIR=... -DGENERATOR=... -DCXX_COMPILER=...
#       [-DLAUNCHER=ccache] -P RunConsumer.cmake
# Installs the built project into WORK_DIR/prefix, then builds and runs the consumer
# application against that prefix only (no package registry, no source tree).
file(REMOVE_RECURSE ${WORK_DIR})
set(prefix ${WORK_DIR}/prefix)

function(run)
  execute_process(COMMAND ${ARGN} RESULT_VARIABLE result)
  if(NOT result EQUAL 0)
    message(FATAL_ERROR "failed (${result}): ${ARGN}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install ${BUILD_DIR} --prefix ${prefix})
set(launcher "")
if(LAUNCHER)
  set(launcher -DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER})
endif()
run(${CMAKE_COMMAND} -S ${APP_DIR} -B ${WORK_DIR}/build -G ${GENERATOR} -DCMAKE_BUILD_TYPE=Release
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER} ${launcher} -DCMAKE_PREFIX_PATH=${prefix}
    -DCMAKE_FIND_USE_PACKAGE_REGISTRY=OFF)
run(${CMAKE_COMMAND} --build ${WORK_DIR}/build)
run(${WORK_DIR}/build/consumer_app)
