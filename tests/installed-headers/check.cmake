# Installs the build into a fresh prefix, so that no header of an earlier run
# is left to be found, and builds the consumer project next to this script
# against that prefix alone.
#   cmake -DBUILD_DIR=... -DCONFIG=... -DWORK_DIR=... -DGENERATOR=... -DMAKE_PROGRAM=...
#         -DCXX_COMPILER=... -DCoin_DIR=... -DQt6_DIR=... -P check.cmake
file(REMOVE_RECURSE ${WORK_DIR})
execute_process(
  COMMAND ${CMAKE_COMMAND} --install ${BUILD_DIR} --config ${CONFIG} --prefix ${WORK_DIR}/prefix
  OUTPUT_QUIET
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND ${CMAKE_COMMAND} -S ${CMAKE_CURRENT_LIST_DIR} -B ${WORK_DIR}/build -G ${GENERATOR}
    -DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}
    -DCMAKE_CXX_COMPILER=${CXX_COMPILER}
    -DCMAKE_PREFIX_PATH=${WORK_DIR}/prefix
    -DCoin_DIR=${Coin_DIR}
    -DQt6_DIR=${Qt6_DIR}
  OUTPUT_QUIET
  COMMAND_ERROR_IS_FATAL ANY)
cmake_host_system_information(RESULT cores QUERY NUMBER_OF_LOGICAL_CORES)
execute_process(
  COMMAND ${CMAKE_COMMAND} --build ${WORK_DIR}/build --parallel ${cores}
  COMMAND_ERROR_IS_FATAL ANY)
