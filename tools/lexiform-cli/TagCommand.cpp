#include "tools/lexiform-cli/TagCommand.h"

#include "base/present.h"
#include "tools/lexiform-cli/AnsiWriter.h"
#include "tools/lexiform-cli/Sink.h"
#include "tools/lexiform-cli/TokenWriter.h"
#include "tools/lexiform-cli/inputNames.h"
#include "tools/lexiform-cli/writeTexts.h"

#include <memory>

namespace lexiform::cli {

int tag(const TagRequest& request, const linguistics::Engine& engine, std::FILE* out, std::FILE* errors) {
    const std::unique_ptr<TokenFormat> format = formatNamed(request.format);
    const std::vector<std::string> files = inputNames(request.files);
    Sink sink(out);
    const int status = writeTexts({files, request.type}, present(format), request.jobs, engine, sink, errors);
    if (request.withKey) sink.pending += "\n" + ansiKey();
    return sink.finish(errors) ? status : 1;
}

} // namespace lexiform::cli
