// Lessons: the bytes as a tree of paragraphs, and as a page that is laid out. The yardstick is the toolkit's
// own reading of the same page from HTML.
#include "richtext/document/rich_text_document.h"
#include "richtext/state/rtf_reader.h"

#include <benchmark/benchmark.h>

#include <QGuiApplication>

#include <chrono>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace tabrova {
namespace {

using Clock = std::chrono::steady_clock;

constexpr int PageWidth = 700;

double secondsSince(Clock::time_point start) {
    return std::chrono::duration<double>(Clock::now() - start).count();
}

std::string bytesOf(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string shippedLesson(int number) {
    for (const auto& entry : std::filesystem::directory_iterator(TABROVA_SOURCE_DIR "/assets/lessons"))
        if (entry.path().extension() == ".rtf" && entry.path().filename().string()[0] == '0' + number)
            return bytesOf(entry.path());
    return {};
}

// Paragraphs of some looks, so many bytes long.
std::string longLesson(std::size_t bytes) {
    std::string text =
        "{\\rtf1\\ansi{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}{\\colortbl;\\red200\\green0\\blue0;}";
    while (text.size() < bytes)
        text += "\\pard\\qj\\sa120\\f0\\fs22 Keep the {\\b thumb} behind the {\\i neck} and let the {\\cf1 "
                "wrist} hang; "
                "count aloud\\u8212\\'97one, two, three, four\\u8212\\'97and start again where you "
                "stopped.\\par\n"
                "\\pard\\li360\\fi-360\\tx360\\bullet\\tab {\\f1 e|--0--3--5--|} four times slowly\\par\n";
    return text + "}";
}

double secondsOfCopying(const std::string& bytes) {
    constexpr int Rounds = 50;
    std::string copy(bytes.size(), ' ');
    const auto start = Clock::now();
    for (int round = 0; round < Rounds; ++round) {
        std::memcpy(copy.data(), bytes.data(), bytes.size());
        benchmark::DoNotOptimize(copy.data());
    }
    return secondsSince(start) / Rounds;
}

void Read(benchmark::State& state) {
    const std::string bytes = longLesson(static_cast<std::size_t>(state.range(0)));
    double total = 0;
    for (auto _ : state) {
        const auto start = Clock::now();
        benchmark::DoNotOptimize(readRichText(bytes));
        total += secondsSince(start);
    }
    state.counters["times_memcpy"] =
        total / static_cast<double>(state.iterations()) / secondsOfCopying(bytes);
}

double secondsOfLayout(QTextDocument& document) {
    const auto start = Clock::now();
    document.setTextWidth(PageWidth);
    benchmark::DoNotOptimize(document.size());
    return secondsSince(start);
}

double secondsOfHtml(const QString& html) {
    const auto start = Clock::now();
    QTextDocument document;
    document.setUndoRedoEnabled(false);
    document.setHtml(html);
    secondsOfLayout(document);
    return secondsSince(start);
}

void show(benchmark::State& state, const std::string& bytes) {
    double total = 0;
    QString html;
    for (auto _ : state) {
        const auto start = Clock::now();
        const auto page = richTextDocument(readRichText(bytes), {96});
        secondsOfLayout(*page);
        total += secondsSince(start);
        if (html.isEmpty()) html = page->toHtml();
    }
    state.counters["times_html"] = total / static_cast<double>(state.iterations()) / secondsOfHtml(html);
}

void ShowLong(benchmark::State& state) { show(state, longLesson(static_cast<std::size_t>(state.range(0)))); }
void ShowShipped(benchmark::State& state) { show(state, shippedLesson(static_cast<int>(state.range(0)))); }

BENCHMARK(Read)->Arg(1 << 20)->Arg(4 << 20)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowLong)->Arg(1 << 18)->Unit(benchmark::kMillisecond);
BENCHMARK(ShowShipped)->DenseRange(1, 4)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace tabrova

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
