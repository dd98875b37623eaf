#pragma once
/// How the host hands out texts: it calls back into a string adapter, with narrow or with wide text,
/// whichever it holds.
///
///     const std::wstring caption =
///         adapted_text([&](void* adapter) { ox_scn_2d_get_wcaption(scene, adapter); });

#include <string>

namespace ox {

/// Owns a host adapter whose callbacks arrive at the two operations, any number of times during a host
/// function. Texts are lent for the call and may be null. What an operation throws is dropped at the
/// border. [ui]
class Tox_string_adapter_base {
public:
    virtual void assign_wide(const wchar_t* text) = 0;
    virtual void assign_narrow(const char* text) = 0;

    Tox_string_adapter_base(const Tox_string_adapter_base&) = delete;
    Tox_string_adapter_base& operator=(const Tox_string_adapter_base&) = delete;

    /// What host functions take; valid as long as the adapter. Null where the host makes none.
    void* handle() const { return handle_; }

protected:
    Tox_string_adapter_base();
    ~Tox_string_adapter_base();

private:
    void* handle_;
};

/// Fills a wide string of the caller, which must outlive the adapter. Each delivery replaces the text, a
/// null delivery empties it, no delivery leaves it. Narrow deliveries are in the system's code page.
class Tox_std_wstring_adapter final : public Tox_string_adapter_base {
public:
    explicit Tox_std_wstring_adapter(std::wstring& target) : target_(&target) {}

    void assign_wide(const wchar_t* text) override;
    void assign_narrow(const char* text) override;

private:
    std::wstring* target_;
};

/// The text that `deliver` makes a host function hand to the adapter handle it is given; empty when
/// there is none.
template <class Deliver>
std::wstring adapted_text(Deliver&& deliver) {
    std::wstring text;
    const Tox_std_wstring_adapter adapter(text);
    if (adapter.handle()) deliver(adapter.handle());
    return text;
}

}  // namespace ox
