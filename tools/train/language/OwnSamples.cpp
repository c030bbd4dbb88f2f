#include "tools/train/language/OwnSamples.h"

#include "tools/train/language/Fragments.h"

#include <algorithm>
#include <fstream>

namespace lexiform::train {

namespace fs = std::filesystem;

namespace {

void addLine(const std::string& line, std::vector<OwnSample>& samples) {
    if (line.starts_with("= ")) {
        samples.push_back({line.substr(2), {}, {}});
    } else if (OwnSample& sample = samples.back(); sample.words.empty()) {
        for (const std::string_view word : wordsOf(line))
            sample.words.emplace_back(word);
    } else {
        sample.sentences.push_back(line);
    }
}

} // namespace

Outcome<std::vector<OwnSample>, std::string> readSamples(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    std::vector<OwnSample> samples;
    for (const fs::path& file : files) {
        std::ifstream input(file, std::ios::binary);
        bool begun = false;
        for (std::string line; std::getline(input, line);) {
            begun = begun || line.starts_with("= ");
            if (!begun) return file.string() + ": it does not start with a language";
            addLine(line, samples);
        }
    }
    for (const OwnSample& sample : samples)
        if (sample.words.empty() || sample.sentences.empty())
            return folder.string() + ": the sample of " + sample.language + " is not whole";
    return samples;
}

fs::path ownSamples() {
    return LEXIFORM_LANGUAGE_SAMPLES;
}

} // namespace lexiform::train
