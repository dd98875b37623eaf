#include "oxcheck/stage/lent.h"

namespace oxcheck {

std::vector<std::string>& late_calls() {
    static std::vector<std::string> calls;
    return calls;
}

std::vector<std::unique_ptr<lent_object>>& detail::lent_objects() {
    static std::vector<std::unique_ptr<lent_object>> objects;
    return objects;
}

void forget_lent_objects() {
    detail::lent_objects().clear();
    detail::lent_objects().shrink_to_fit();
}

bool lent_object::late(const char* what) const {
    if (over) late_calls().push_back(what);
    return over;
}

}  // namespace oxcheck
