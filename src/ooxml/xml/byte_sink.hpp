#pragma once

#include <cstddef>
#include <string>

namespace ooxml {

// Where serialised bytes go: a zip entry being written, or a string in memory.
class ByteSink {
public:
    virtual ~ByteSink() = default;
    virtual void Write(const char* data, std::size_t size) = 0;
};

// Collects the bytes in memory, for small pieces that are compared or reused before being written.
class StringSink final : public ByteSink {
public:
    void Write(const char* data, std::size_t size) override { text_.append(data, size); }
    const std::string& Text() const noexcept { return text_; }

private:
    std::string text_;
};

}  // namespace ooxml
