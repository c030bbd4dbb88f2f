#include "tools/train/network/addRow.h"

#include "tools/train/network/VectorClones.h"

namespace lexiform::train {

LEXIFORM_VECTOR_CLONES
void addRow(float* LEXIFORM_ALONE sum, const float* row, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        sum[i] += row[i];
}

} // namespace lexiform::train
