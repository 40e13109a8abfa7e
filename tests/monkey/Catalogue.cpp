#include "monkey/Catalogue.h"

namespace Monkey {

const std::vector<ClassEntry>& catalogue()
{
    static const std::vector<ClassEntry> all = [] {
        std::vector<ClassEntry> entries;
        for (const auto& part :
             {frameClasses(), buttonClasses(), controlClasses(), popupClasses(), toastClasses()})
            entries.insert(entries.end(), part.begin(), part.end());
        return entries;
    }();
    return all;
}

} // namespace Monkey
