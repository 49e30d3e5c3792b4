#include "intake/spooler.h"

#include <cups/cups.h>

#include <cstdlib>
#include <memory>

namespace intake {
namespace {

constexpr double patienceInSeconds = 2;
constexpr int patienceInMilliseconds = 2000;

struct Close {
    void operator()(http_t* connection) const { httpClose(connection); }
    void operator()(ipp_t* message) const { ippDelete(message); }
};
using Connection = std::unique_ptr<http_t, Close>;
using Message = std::unique_ptr<ipp_t, Close>;

int giveUp(http_t* /*connection*/, void* /*data*/) {
    return 0;
}

// Nobody is there to type one.
const char* noPassword(const char* /*prompt*/, http_t* /*connection*/, const char* /*method*/,
                       const char* /*resource*/, void* /*data*/) {
    return nullptr;
}

// The scheduler tells its filters where it listens.
Connection connect() {
    if (std::getenv("CUPS_SERVER") == nullptr) {
        return nullptr;
    }
    cupsSetPasswordCB2(noPassword, nullptr);
    Connection connection(httpConnect2(cupsServer(), ippPort(), nullptr, AF_UNSPEC,
                                       cupsEncryption(), 1, patienceInMilliseconds, nullptr));
    if (connection) {
        httpSetTimeout(connection.get(), patienceInSeconds, giveUp, nullptr);
    }
    return connection;
}

ipp_t* makeRequest(const std::string& job) {
    ipp_t* request = ippNewRequest(IPP_OP_GET_JOB_ATTRIBUTES);
    const std::string uri = "ipp://localhost/jobs/" + job;
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.c_str());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr,
                 cupsUser());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", nullptr,
                 "media-col");
    return request;
}

std::optional<SizeWish> readDimensions(ipp_t* size) {
    const int width = ippGetInteger(ippFindAttribute(size, "x-dimension", IPP_TAG_INTEGER), 0);
    const int height = ippGetInteger(ippFindAttribute(size, "y-dimension", IPP_TAG_INTEGER), 0);
    const auto nominal = sizes::inMillimetres(width / 100.0, height / 100.0);
    if (!sizes::isLabelSize(nominal)) {
        return std::nullopt;
    }
    return SizeWish{sizes::sizeName(nominal), nullptr, nominal, false};
}

std::optional<SizeWish> readMedia(ipp_t* media, const QueueDescription& queue,
                                  const MediaLookup& knownMedia) {
    if (auto* size = ippFindAttribute(media, "media-size", IPP_TAG_BEGIN_COLLECTION)) {
        return readDimensions(ippGetCollection(size, 0));
    }
    auto* name = ippFindAttribute(media, "media-size-name", IPP_TAG_ZERO);
    const char* text = name == nullptr ? nullptr : ippGetString(name, 0, nullptr);
    return text == nullptr ? std::nullopt : readWish(text, queue, knownMedia);
}

}  // namespace

std::optional<SizeWish> askForSize(const std::string& job, const QueueDescription& queue,
                                   const MediaLookup& knownMedia) {
    const Connection connection = connect();
    if (!connection || job.find_first_not_of("0123456789") != std::string::npos) {
        return std::nullopt;
    }
    const Message answer(cupsDoRequest(connection.get(), makeRequest(job), "/"));
    if (!answer) {
        return std::nullopt;
    }
    auto* media = ippFindAttribute(answer.get(), "media-col", IPP_TAG_BEGIN_COLLECTION);
    return media == nullptr ? std::nullopt
                            : readMedia(ippGetCollection(media, 0), queue, knownMedia);
}

}  // namespace intake
