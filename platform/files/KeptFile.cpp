#include "platform/files/KeptFile.h"

#include "platform/files/ContentDigest.h"
#include "platform/text/Log.h"

namespace velmora {

namespace {

constexpr const char* kDigestKey = "ContentDigestKey";

// A history of fifty lines of a hundred thousand tokens has half of this.
constexpr std::uint64_t kLargestFile = std::uint64_t{256} << 20U;

/// Takes the digest out of the content. A file of a release that wrote none has nothing to compare.
bool matchesItsDigest(PropertyDictionary& content) {
    const auto found = content.find(kDigestKey);
    if (found == content.end()) {
        return true;
    }
    const auto digest = found->second.asInteger();
    content.erase(found);
    return digest && *digest == contentDigest(content);
}

} // namespace

KeptFile::Reading KeptFile::read(std::string_view complaint) {
    m_seen.reset();
    m_lastBytes.reset();
    const FileReading file = readFile(m_path, kLargestFile);
    const bool isEmpty = file.state == FileReading::State::Read && file.bytes.empty();
    if (file.state == FileReading::State::Absent || isEmpty) {
        m_seen = file.identity;
        return {};
    }
    Reading reading;
    if (file.state == FileReading::State::Unreachable) {
        reading.state = State::Unreachable;
        reading.reason = file.reason;
        log(complaint);
        return reading;
    }
    auto list = file.state == FileReading::State::Read ? readPropertyList(file.bytes) : std::nullopt;
    if (list && list->asDictionary()) {
        reading.content = *list->asDictionary();
        if (matchesItsDigest(*reading.content)) {
            reading.state = State::Read;
            m_seen = file.identity;
            return reading;
        }
    }
    log(complaint);
    const auto target = followLinks(m_path);
    if (const auto keptAs = target ? setAsideDamagedFile(*target) : std::nullopt) {
        reading.state = State::SetAside;
        reading.keptAs = *keptAs;
        m_seen = FileIdentity{};
    } else {
        reading.state = State::Unreachable;
        reading.reason = "It is damaged and cannot be renamed";
    }
    return reading;
}

bool KeptFile::isAsLastSeen() const {
    if (!m_seen) {
        return false;
    }
    if (!m_seen->exists) {
        // A link whose target was set aside, or was never there, may be written through.
        const auto target = followLinks(m_path);
        return target && identityOfFile(*target) == m_seen;
    }
    return identityOfFile(m_path) == m_seen;
}

void KeptFile::giveUp() {
    const std::filesystem::path target = followLinks(m_path).value_or(m_path);
    m_seen = identityOfFile(target);
    if (m_seen && m_seen->exists && setAsideDamagedFile(target)) {
        m_seen = FileIdentity{};
    }
    m_lastBytes.reset();
}

WriteResult KeptFile::write(const PropertyDictionary& content) {
    if (!isAsLastSeen()) {
        return {"The file holds what has not been read"};
    }
    PropertyDictionary whole = content;
    whole[kDigestKey] = static_cast<std::int64_t>(contentDigest(content));
    PropertyData bytes = binaryPropertyList(whole);
    if (bytes.empty()) {
        log("nothing to write, the former file stays: " + m_path.string());
        return {"What is to be kept has no form in a file"};
    }
    if (m_lastBytes == bytes && m_seen->exists) {
        return {};
    }
    WriteResult result = writeFileAtomically(m_path, bytes);
    if (result) {
        m_seen = identityOfFile(m_path);
        m_lastBytes = std::move(bytes);
    }
    return result;
}

} // namespace velmora
