// What it takes to show a text in colour: `qt-pane-benchmark TEXT-FILE [REPETITIONS]` gives every word
// a colour in turn, repeats the text if asked to, and prints times in milliseconds.

#include "platform/qt/panes/OutputTextEdit.h"
#include "platform/qt/theme/Palette.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QImage>
#include <QPainter>
#include <QScrollBar>

#include <fstream>
#include <iostream>
#include <sstream>
#include <string>

namespace {

using lexiform::AttributedText;
using lexiform::Colour;
using lexiform::qt::Appearance;
using lexiform::qt::OutputTextEdit;

class Stopwatch {
public:
    Stopwatch() { timer_.start(); }
    void print(const char* what) {
        std::cout << what << ": " << static_cast<double>(timer_.nsecsElapsed()) / 1e6 << " ms\n";
        timer_.start();
    }

private:
    QElapsedTimer timer_;
};

std::string readFile(const char* path, int repetitions) {
    std::ifstream file(path, std::ios::binary);
    std::stringstream content;
    content << file.rdbuf();
    std::string text;
    for (int i = 0; i < repetitions; ++i)
        text += content.str();
    return text;
}

AttributedText coloured(const std::string& text) {
    AttributedText result;
    int word = 0;
    for (std::size_t start = 0; start < text.size();) {
        const std::size_t end = std::min(text.find_first_of(" \n.,;", start), text.size());
        result.append(std::string_view(text).substr(start, end - start), static_cast<Colour>(1 + word++ % 9));
        const std::size_t next = std::min(text.find_first_not_of(" \n.,;", end), text.size());
        result.append(std::string_view(text).substr(end, next - end), Colour::gray);
        start = next;
    }
    return result;
}

long residentMegabytes() {
    std::ifstream status("/proc/self/statm");
    long total = 0;
    long resident = 0;
    status >> total >> resident;
    return resident * 4 / 1024;
}

void paint(OutputTextEdit& pane, QImage& screen) {
    QPainter painter(&screen);
    pane.render(&painter);
}

void measureLoading(OutputTextEdit& pane, const AttributedText& text, QImage& screen) {
    QPlainTextEdit bare;
    const QString utf16 = QString::fromStdString(text.string());
    Stopwatch stopwatch;
    bare.setPlainText(utf16);
    stopwatch.print("the editor's own loading of the bare text");
    pane.replaceText(text);
    stopwatch.print("replace, empty pane");
    paint(pane, screen);
    stopwatch.print("first screen painted");
    pane.replaceText(text);
    stopwatch.print("replace, full pane");
    paint(pane, screen);
    stopwatch.print("first screen painted");
}

void measureScrolling(OutputTextEdit& pane, QImage& screen) {
    Stopwatch stopwatch;
    QScrollBar& bar = *pane.verticalScrollBar();
    for (int page = 0; page < 200; ++page) {
        bar.triggerAction(QScrollBar::SliderPageStepAdd);
        paint(pane, screen);
    }
    stopwatch.print("200 pages scrolled and painted");
    bar.setValue(bar.maximum());
    paint(pane, screen);
    stopwatch.print("jump to the end");
}

void measureTheRest(OutputTextEdit& pane, QImage& screen) {
    Stopwatch stopwatch;
    QApplication::setPalette(lexiform::qt::paletteOf(Appearance::dark));
    paint(pane, screen);
    stopwatch.print("recolour for the dark appearance");
    const std::string text = pane.text();
    stopwatch.print("text()");
    pane.appendText(AttributedText("one line more\n", Colour::red));
    paint(pane, screen);
    stopwatch.print("append a line");
    pane.resize(pane.width() - 40, pane.height());
    paint(pane, screen);
    stopwatch.print("resize");
}

} // namespace

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    if (argc < 2) {
        std::cerr << "usage: qt-pane-benchmark TEXT-FILE [REPETITIONS]\n";
        return 2;
    }
    QApplication::setPalette(lexiform::qt::paletteOf(Appearance::light));
    const AttributedText text = coloured(readFile(argv[1], argc > 2 ? std::stoi(argv[2]) : 1));
    std::cout << text.string().size() << " bytes, " << text.runs().size() << " runs\n";
    OutputTextEdit pane;
    pane.resize(424, 700);
    pane.show();
    QApplication::processEvents();
    QImage screen(pane.size(), QImage::Format_RGB32);
    paint(pane, screen);
    const long before = residentMegabytes();
    measureLoading(pane, text, screen);
    std::cout << "resident memory grown by " << residentMegabytes() - before << " MB\n";
    measureScrolling(pane, screen);
    measureTheRest(pane, screen);
    return 0;
}
