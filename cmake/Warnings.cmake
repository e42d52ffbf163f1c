# Every target of ours links this one; it is the only place where warnings and language strictness live.
option(CARAVEL_WERROR "Treat warnings as errors" OFF)
set(CARAVEL_SANITIZE "" CACHE STRING "Sanitizer to build with: empty, address or thread")

add_library(caravel_strict INTERFACE)
target_compile_options(caravel_strict INTERFACE
    -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wold-style-cast
    -Wnon-virtual-dtor -Woverloaded-virtual $<$<CONFIG:Debug>:-Wnull-dereference> -Wcast-qual -Wformat=2
    -Wimplicit-fallthrough)
# -Wnull-dereference: where g++ 12 optimises it takes Qt's inlined handles for null.
target_compile_definitions(caravel_strict INTERFACE
    QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII QT_NO_FOREACH QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)
if(CARAVEL_WERROR)
    target_compile_options(caravel_strict INTERFACE -Werror)
endif()
if(CARAVEL_SANITIZE STREQUAL "address")
    target_compile_options(caravel_strict INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=undefined -fno-omit-frame-pointer)
    target_link_options(caravel_strict INTERFACE -fsanitize=address,undefined)
elseif(CARAVEL_SANITIZE STREQUAL "thread")
    target_compile_options(caravel_strict INTERFACE -fsanitize=thread -fno-omit-frame-pointer)
    target_link_options(caravel_strict INTERFACE -fsanitize=thread)
endif()
# A program loads only the libraries that it calls: the command line none of the desktop's.
target_link_options(caravel_strict INTERFACE -Wl,--as-needed)
target_link_libraries(caravel_strict INTERFACE Threads::Threads)
