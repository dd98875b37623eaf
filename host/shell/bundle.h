#pragma once
/// A plug-in file, mapped into this process.

#include <filesystem>
#include <memory>
#include <stdexcept>

#include "border/custom_pointer.h"

namespace oxhost::shell {

/// One line that begins with the file.
struct bundle_error : std::runtime_error {
    using runtime_error::runtime_error;
};

class bundle {
public:
    /// Throws bundle_error for a file that is missing, is no shared library, needs functions that nobody
    /// here has, or lacks one of a bundle's two exports.
    explicit bundle(const std::filesystem::path& file);

    /// Hands the key and the pointer of each service factory, in the bundle's order, to a factory visitor.
    void visit_factories(ox::custom_pointer factory_visitor) const;

    const std::filesystem::path& file() const { return file_; }

private:
    struct unmap {
        void operator()(void* library) const;
    };
    void* exported(const char* name) const;

    std::filesystem::path file_;
    std::unique_ptr<void, unmap> library_;
    ox::custom_pointer interface_{};
};

}  // namespace oxhost::shell
