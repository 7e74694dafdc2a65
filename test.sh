#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Builds Velmora with warnings as errors and runs its tests.
#   --format         first check the layout of the sources with clang-format
#   --asan           also run the tests under the address and undefined-behaviour sanitizers
#   --tsan           also run the tests of the threaded parts under the thread sanitizer
#   --fuzz SECONDS   also feed each parser with random input for that long
#   --windows        also cross-build for Windows and run a part of the tests under Wine (all of
#                    them: packaging/windows/test.sh), if the archive
#                    velmora-windows-sdk.tar.xz is at hand: VELMORA_WINDOWS_SDK_ARCHIVE names it,
#                    or it lies in ../shared/windows
#   --again          run up to three programs that failed once more, alone; one that passes then
#                    counts as passed, and its name is printed
#   --only REGEX     run only the tests whose names match
# The last line counts what passed and what failed; the exit code is 0 only if nothing failed.
set -Eeuo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"

format=no asan=no tsan=no fuzz=0 windows=no again=no only=.
# The whole under Wine takes too long for every change: these show what differs on Windows, or are
# quick.
windows_tests=(
    AnswersTest AppSettingsTest AudioCommandsTest AudioFilesControllerTest AudioLoopTest
    BrowserPageTest BurnDialogTest CacheSweeperTest CaptionPainterTest CardTest ComposerTest
    ConcatListTest CrashDumpTest CrashReporterTest CreateVideoTest DiscSessionTest DiscWriterTest
    DocumentsTest DropAreaTest EncoderCommandsTest EncoderLocatorTest EncoderOptionsTest
    EncoderProgressTest ExifReaderTest FadeComposerTest FileManagerTest FirstRunTest FrameFitterTest
    FrameWriterTest HistoryModelTest HistoryRemovalTest HistoryStoreTest HistoryWidgetTest
    HistoryWriterTest ImageCheckTest ImageLoaderTest InputCheckTest LogTest MakeOptionsTest
    MakeProjectTest MediaFileInfoTest MediaSuffixesTest MetricSenderTest Mp3Test OutputTargetTest
    PhotoFileTest ProcessTreeTest ProgramLanguageTest ProgressTest ProgressTextTest ProjectFileTest
    ProjectNameTest ProjectSlidesTest RemainingTimeTest RenderControlTest RenderPlanTest
    SecretMaskTest SecretsTest ServicesConfigTest SessionKeyTest SessionValuesTest
    ShortcutResolverTest SingleInstanceTest SlideRendererTest SlideTableModelTest
    SlideTransitionTest SlidesTest SoundCheckerTest SoundPlanTest StandardOutputTest
    StartMessageTest SystemInfoTest TaskThreadTest TerminationWatcherTest ThubnailProviderTest
    TileGridTest TimelineTest TitleBackgroundTest ToolRunnerTest TransitionTest TransitionTypeTest
    UnavailableUploadTest UpdateCheckerTest VelmoraStartTest VelmoratoolTest VideoNameTest
    WavTranscoderTest
    WavWriterTest WorkerProtocolTest WorkerTest
)
sdk=${VELMORA_WINDOWS_SDK_ARCHIVE:-../shared/windows/velmora-windows-sdk.tar.xz}
usage() { sed -n 's/^#   //p' "$0"; }
while [ $# -gt 0 ]; do
    case $1 in
    --format) format=yes ;;
    --asan) asan=yes ;;
    --tsan) tsan=yes ;;
    --windows) windows=yes ;;
    --again) again=yes ;;
    --fuzz)
        fuzz=${2:-}
        shift
        ;;
    --only)
        only=${2:-}
        shift
        ;;
    -h | --help)
        usage
        exit 0
        ;;
    *)
        echo "Unknown option: $1" >&2
        usage >&2
        exit 2
        ;;
    esac
    shift || true
done
if ! [[ $fuzz =~ ^[0-9]+$ ]] || [ -z "$only" ]; then
    usage >&2
    exit 2
fi

# shellcheck source=packaging/linux/dependencies.sh
source packaging/linux/dependencies.sh
packages=("${build_packages[@]}" "${run_packages[@]}" "${test_packages[@]}")
[ "$format" = no ] || packages+=("${format_packages[@]}")
[ "$fuzz" = 0 ] || packages+=("${fuzz_packages[@]}")
install_packages "${packages[@]}"

# shellcheck source=packaging/testing.sh
source packaging/testing.sh

check_format() {
    find src tests tools benchmarks -name '*.cpp' -print0 -o -name '*.h' -print0 |
        xargs -0 clang-format-14 --dry-run --Werror
}

run_fuzzers() {
    local target name found
    echo "== Fuzzing, $fuzz s each"
    cmake --preset fuzz >/dev/null
    cmake --build --preset fuzz --target fuzzers
    for target in build/fuzz/bin/Fuzz*; do
        [ -x "$target" ] || continue
        name=$(basename "$target")
        found=build/fuzz/found/$name
        mkdir -p "$found"
        count "$name" "$target" -max_total_time="$fuzz" -timeout=10 -rss_limit_mb=2048 \
            -artifact_prefix=build/fuzz/ -print_final_stats=1 -verbosity=0 \
            "$found" "tests/fuzz/corpus/$name"
    done
}

mkdir -p build
[ "$format" = no ] || count "format" check_format
run_tests ci "$only"
if [ "$asan" = yes ]; then
    export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
    export LSAN_OPTIONS=suppressions=$PWD/tests/sanitizers/lsan.supp:print_suppressions=0
    run_tests asan-ubsan "$only"
fi
if [ "$tsan" = yes ]; then
    export TSAN_OPTIONS=suppressions=$PWD/tests/sanitizers/tsan.supp:ignore_noninstrumented_modules=1:halt_on_error=1
    run_tests tsan "$only"
fi
[ "$fuzz" = 0 ] || run_fuzzers
if [ "$windows" = yes ]; then
    if [ -e "$sdk" ]; then
        run_windows_tests "$sdk" "$only" "${windows_tests[@]}"
    else
        echo "The Windows SDK is not here, so the Windows build was left out."
    fi
fi
if [ "$failed" -gt 0 ]; then
    exit 1
fi
