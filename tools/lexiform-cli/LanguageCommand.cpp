#include "tools/lexiform-cli/LanguageCommand.h"

#include "tools/lexiform-cli/LanguageWriter.h"
#include "tools/lexiform-cli/Sink.h"
#include "tools/lexiform-cli/inputNames.h"
#include "tools/lexiform-cli/writeTexts.h"

namespace lexiform::cli {

int tellLanguages(const LanguageRequest& request, const linguistics::Engine& engine, std::FILE* out,
                  std::FILE* errors) {
    const LanguageFormat format(request.by == "sentence");
    Sink sink(out);
    const int status =
        writeTexts({inputNames(request.files), request.type}, format, request.jobs, engine, sink, errors);
    return sink.finish(errors) ? status : 1;
}

} // namespace lexiform::cli
