#include "app/update/handleUpdateResponse.h"

#include "app/update/handleUpdateManifest.h"
#include "base/present.h"

#include <utility>

namespace lexiform {

namespace {

bool isSuccess(int statusCode) {
    return statusCode >= 200 && statusCode <= 299;
}

// These two alone, not even the types of property lists: the maker's site sends the manifest as text.
bool isAcceptedType(const std::string& mimeType) {
    return mimeType == "text/xml" || mimeType == "text/plain";
}

bool canBeManifest(const std::optional<UrlResponse>& response, const std::optional<UrlError>& error) {
    return response && !error && response->statusCode && isSuccess(*response->statusCode) &&
           response->mimeType && isAcceptedType(*response->mimeType);
}

} // namespace

void handleUpdateResponse(std::optional<std::string> body, const std::optional<UrlResponse>& response,
                          const std::optional<UrlError>& error, const std::string& runningVersion,
                          const std::shared_ptr<AppDelegate>& delegate) {
    if (!canBeManifest(response, error)) return;
    present(present(delegate).services().mainQueue).async([body = std::move(body), runningVersion, delegate] {
        handleUpdateManifest(body, runningVersion, present(delegate));
    });
}

} // namespace lexiform
