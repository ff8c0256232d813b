# Included by the tests: the fuzz targets, built by the fuzz preset with clang in a build tree of
# their own (only the package and engine layers, the two fuzzers and their seeds), and a short run of
# each as a test. Half a minute per fuzzer opens every seed under the sanitizers and a few thousand
# damaged variants; the long runs are `make fuzz`.
set(VOS_FUZZ_TEST_SECONDS 30 CACHE STRING "How long each fuzz target runs in the tests")
# One seed for every build, so that a failing run points at a change of the library rather than at
# a lucky draw; the long runs (make fuzz) draw a new one each time.
set(VOS_FUZZ_TEST_SEED 1 CACHE STRING "libFuzzer's -seed for the tests' runs (0: a new one each run)")

find_program(VOS_FUZZ_CLANG clang++)
if(VOS_FUZZ_CLANG)
  execute_process(COMMAND ${VOS_FUZZ_CLANG} --print-runtime-dir OUTPUT_VARIABLE fuzz_runtime_dir
                  OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
endif()
if(NOT VOS_FUZZ_CLANG OR NOT EXISTS "${fuzz_runtime_dir}/libclang_rt.fuzzer-${CMAKE_SYSTEM_PROCESSOR}.a")
  message(FATAL_ERROR "The fuzz tests need clang and its libFuzzer runtime: run scripts/install-deps, or configure "
                      "with -DVOS_FUZZ_TESTS=OFF.")
endif()

include(ExternalProject)
set(fuzz_dir ${CMAKE_BINARY_DIR}/fuzz-build)
set(fuzz_targets open_fuzzer open_save_fuzzer fuzz_seed_corpus)
include(${PROJECT_SOURCE_DIR}/cmake/sub_build_command.cmake)
vos_sub_build_command(fuzz_build_command ${fuzz_targets})
ExternalProject_Add(fuzz_build
  SOURCE_DIR ${PROJECT_SOURCE_DIR}
  BINARY_DIR ${fuzz_dir}
  CONFIGURE_COMMAND ${CMAKE_COMMAND} --preset fuzz -S <SOURCE_DIR> -B <BINARY_DIR> -G ${CMAKE_GENERATOR}
                    -DCMAKE_CXX_COMPILER=${VOS_FUZZ_CLANG}
  BUILD_COMMAND ${fuzz_build_command}
  INSTALL_COMMAND ""
  BUILD_ALWAYS ON)

# Each run starts from the seeds alone, so that its length does not grow from build to build; the
# input behind a finding is kept in the run's crashes/ folder, libFuzzer's output in its fuzz.log.
set(fuzz_seeds ${fuzz_dir}/fuzz/seeds)
foreach(fuzzer open open_save)
  add_test(NAME fuzz.${fuzzer}
           COMMAND bash ${PROJECT_SOURCE_DIR}/fuzz/run-fuzzer --fresh --log ${fuzz_dir}/fuzz/${fuzzer}_fuzzer
                   ${VOS_FUZZ_TEST_SECONDS} ${CMAKE_CURRENT_BINARY_DIR}/fuzz/${fuzzer} ${fuzz_seeds}/library
                   ${fuzz_seeds}/excel)
  # Beyond the run itself: loading the seeds, and the 25 s an input may take before it counts as a hang.
  math(EXPR fuzz_timeout "${VOS_FUZZ_TEST_SECONDS} + 150")
  set_tests_properties(fuzz.${fuzzer} PROPERTIES LABELS fuzz TIMEOUT ${fuzz_timeout}
                       ENVIRONMENT FUZZ_ARGS=-seed=${VOS_FUZZ_TEST_SEED})
endforeach()
