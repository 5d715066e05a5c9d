# Builds the example with nothing but the installed kit, the way its own comment says, and installs it beside the
# client's module. A kit of another major version must not be taken for the one that was asked for.
file(REMOVE_RECURSE ${BUILD})
execute_process(COMMAND ${CMAKE_COMMAND} -S ${SOURCE} -B ${BUILD} -G ${GENERATOR}
    -D CMAKE_PREFIX_PATH=${PREFIX} -D CMAKE_BUILD_TYPE=${CONFIG}
    -D CMAKE_CXX_COMPILER=${COMPILER} -D CMAKE_CXX_FLAGS=${FLAGS}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --build ${BUILD} --config ${CONFIG}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --config ${CONFIG} --prefix ${PREFIX}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

set(PACKAGE_FIND_NAME AlarmSchemePlatform)
math(EXPR PACKAGE_FIND_VERSION_MAJOR "${MAJOR} + 1")
set(PACKAGE_FIND_VERSION ${PACKAGE_FIND_VERSION_MAJOR}.0)
set(CMAKE_SIZEOF_VOID_P)
include(${PREFIX}/lib/cmake/AlarmSchemePlatform/AlarmSchemePlatformConfigVersion.cmake)
if(PACKAGE_VERSION_COMPATIBLE)
    message(FATAL_ERROR "The kit ${PACKAGE_VERSION} passes for version ${PACKAGE_FIND_VERSION}")
endif()
