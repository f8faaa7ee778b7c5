// CNumericLocale: while it lives, this thread reads and prints numbers with a decimal point.
#pragma once

#include <locale.h>

namespace kelvo {

/// For calls into C libraries that use strtod and the like. Other threads are not touched; belongs
/// to the thread that made it.
class CNumericLocale {
public:
    CNumericLocale()
        : fPlain(newlocale(LC_NUMERIC_MASK, "C", duplocale(LC_GLOBAL_LOCALE))),
          fEarlier(uselocale(fPlain)) {}
    ~CNumericLocale() {
        uselocale(fEarlier);
        if (fPlain)
            freelocale(fPlain);
    }
    CNumericLocale(const CNumericLocale&) = delete;
    CNumericLocale& operator=(const CNumericLocale&) = delete;

private:
    locale_t fPlain;
    locale_t fEarlier;
};

} // namespace kelvo
