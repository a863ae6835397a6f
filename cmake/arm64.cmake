# Cross build for arm64 with Debian's compiler: cmake --toolchain cmake/arm64.cmake. It takes g++-aarch64-linux-gnu and
# qtbase5-dev:arm64; Qt's own tools are those of the building machine. ./dev cross does all of it.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
set(CMAKE_C_COMPILER aarch64-linux-gnu-gcc)
set(CMAKE_CXX_COMPILER aarch64-linux-gnu-g++)
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64)
