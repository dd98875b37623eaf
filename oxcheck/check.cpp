#include "oxcheck/check.h"

namespace oxcheck {

std::vector<check> all_checks() {
    std::vector<check> all;
    for (const auto group :
         {load_checks(), entry_checks(), factory_checks(), pointer_checks(), referent_checks(),
          element_checks(), coherence_checks(), notification_checks(), table_checks(), element_null_checks(),
          text_checks(), text_null_checks(), run_checks(), fault_checks()})
        all.insert(all.end(), group.begin(), group.end());
    return all;
}

}  // namespace oxcheck
