#pragma once

#include <memory>

namespace ox::toolkit {

/// A member of an object that may end while it calls out: callbacks and views may do anything.
class life {
public:
    life() = default;
    life(const life&) = delete;
    life& operator=(const life&) = delete;

    /// True until the object ends.
    class watch {
    public:
        explicit watch(life& watched) : token_(watched.token()) {}
        explicit operator bool() const { return !token_.expired(); }

    private:
        std::weak_ptr<void> token_;
    };

private:
    /// Made with the first watch: most objects are never watched.
    const std::shared_ptr<void>& token() {
        if (!token_) token_ = std::make_shared<char>();
        return token_;
    }

    std::shared_ptr<void> token_;
};

}  // namespace ox::toolkit
