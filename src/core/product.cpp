#include "core/product.h"

#include "core/text.h"

namespace qf::core {

std::string VersionText(const Product& product)
{
    return std::to_string(product.major) + std::to_string(product.minor) + RevisionLetter(product.revision);
}

std::string ProductTitle(const Product& product)
{
    std::string title(product.title);
    title += ' ';
    title += VersionText(product);
    if (!product.description.empty()) {
        title += ' ';
        title += product.description;
    }
    return title;
}

} // namespace qf::core
