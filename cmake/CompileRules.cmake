# Standard, warnings and Qt strictness for every target of the project, in one place.
add_library(pelorin_rules INTERFACE)
target_compile_features(pelorin_rules INTERFACE cxx_std_20)
target_compile_options(pelorin_rules INTERFACE
    -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Werror)
target_compile_definitions(pelorin_rules INTERFACE
    QT_NO_CAST_FROM_ASCII
    QT_NO_CAST_TO_ASCII
    QT_NO_CAST_FROM_BYTEARRAY
    QT_NO_NARROWING_CONVERSIONS_IN_CONNECT
    QT_NO_URL_CAST_FROM_STRING
    QT_NO_KEYWORDS
    QT_DISABLE_DEPRECATED_BEFORE=0x060400)

if(PELORIN_SANITIZE)
    target_compile_options(pelorin_rules INTERFACE
        -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    target_link_options(pelorin_rules INTERFACE -fsanitize=address,undefined)
endif()

# libFuzzer with both sanitizers, and what llvm-cov needs to tell how far a target got.
if(PELORIN_FUZZ)
    set(fuzz_flags -fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all
        -fprofile-instr-generate -fcoverage-mapping -fno-omit-frame-pointer)
    target_compile_options(pelorin_rules INTERFACE ${fuzz_flags})
    target_link_options(pelorin_rules INTERFACE ${fuzz_flags})
endif()
