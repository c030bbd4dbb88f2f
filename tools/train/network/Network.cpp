#include "tools/train/network/Network.h"

#include "linguistics/text/NameLabel.h"
#include "linguistics/text/UniversalPos.h"
#include "tools/train/network/MatrixProduct.h"
#include "tools/train/network/VectorClones.h"
#include "tools/train/network/addRow.h"

#include <algorithm>
#include <cmath>

namespace lexiform::train {

using namespace linguistics;

namespace {

// The first layer sees the words on both sides, the others only their own place.
constexpr std::size_t firstReach = 1;
constexpr std::size_t nameColumn = universalPosCount;
constexpr float largestGradient = 5;

std::size_t reachOf(std::size_t layer) {
    return layer == 0 ? firstReach : 0;
}

bool anyPosMayFollow(std::size_t, std::size_t) {
    return true;
}
bool nameMayFollow(std::size_t previous, std::size_t next) {
    const std::size_t before = previous == nameLabelCount ? 0 : previous;
    return mayFollow(static_cast<NameLabel>(before), static_cast<NameLabel>(next));
}

LEXIFORM_VECTOR_CLONES
void multiply(float* LEXIFORM_ALONE values, const float* factors, std::size_t count) {
    for (std::size_t i = 0; i < count; ++i)
        values[i] *= factors[i];
}

// Dropout (Srivastava et al. 2014): 0 for a share of the numbers, more than 1 for the others.
void drop(float share, Matrix& values, Matrix& mask, std::mt19937& random) {
    constexpr std::size_t perDraw = 4;
    mask.resize(values.rows(), values.columns());
    const auto limit = static_cast<std::uint32_t>(std::lround(share * 256));
    const float kept = 256 / static_cast<float>(256 - limit);
    std::vector<float>& factors = mask.values();
    for (std::size_t i = 0; i + perDraw <= factors.size(); i += perDraw) {
        const auto bits = static_cast<std::uint32_t>(random());
        for (std::size_t k = 0; k < perDraw; ++k)
            factors[i + k] = (bits >> (8 * k) & 0xFFU) < limit ? 0 : kept;
    }
    multiply(values.row(0), mask.row(0), values.values().size());
}

} // namespace

Network::Network(const NetworkShape& shape, std::uint32_t seed)
    : shape_(shape), random_(seed), rows_(shape.layout.size(), shape.width) {
    const float spread = std::sqrt(3.0F / static_cast<float>(rowKindCount));
    for (float& value : rows_.values().values())
        value = (2 * uniform(random_) - 1) * spread * 0.5F;
    for (std::size_t layer = 0; layer < shape.layers; ++layer)
        layers_.push_back(std::make_unique<RecurrentLayer>(
            layer == 0 ? shape.width : 2 * shape.units, shape.units, reachOf(layer), parameters_, random_));
    const std::size_t labels =
        padded(universalPosCount + nameLabelCount + shape.fineLabels + shape.featureLabels);
    headWeights_ = parameters_.add(2 * shape.units, labels,
                                   std::sqrt(3.0F / static_cast<float>(2 * shape.units)), random_);
    headBias_ = parameters_.add(1, labels, 0, random_);
    posChain_ = std::make_unique<ChainLoss>(universalPosCount, anyPosMayFollow, parameters_, random_);
    nameChain_ = std::make_unique<ChainLoss>(nameLabelCount, nameMayFollow, parameters_, random_);
    inputs_.resize(shape.layers + 1);
    masks_.resize(shape.layers + 1);
}

std::size_t Network::fineColumn() const {
    return universalPosCount + nameLabelCount;
}
std::size_t Network::featureColumn() const {
    return fineColumn() + shape_.fineLabels;
}

void Network::place(Batch batch) {
    boundaries_.assign(1, 1);
    starts_.clear();
    lengths_.clear();
    for (const Example* example : batch) {
        starts_.push_back(boundaries_.size());
        lengths_.push_back(example->forms.size());
        boundaries_.insert(boundaries_.end(), example->forms.size(), 0);
        boundaries_.push_back(1);
    }
}

void Network::seeWords(Batch batch, std::span<const SeenForm> forms, const Noise& noise,
                       std::mt19937* random) {
    seen_.assign(boundaries_.size(), boundaryRows(shape_.layout));
    for (std::size_t sentence = 0; sentence < batch.size(); ++sentence)
        for (std::size_t i = 0; i < lengths_[sentence]; ++i) {
            const SeenForm& form = forms[batch[sentence]->forms[i]];
            WordRows& rows = seen_[starts_[sentence] + i];
            rows = form.rows;
            const float share = noise.words / (noise.words + static_cast<float>(form.count));
            if (random != nullptr && uniform(*random) < share)
                rows.setFirst(shape_.layout.row(RowKind::word, unknownRow));
        }
    Matrix& input = inputs_.front();
    input.resize(boundaries_.size() + 2 * firstReach, shape_.width);
    for (std::size_t place = 0; place < seen_.size(); ++place)
        for (const std::uint32_t row : seen_[place])
            addRow(input.row(place + firstReach), rows_.values().row(row), shape_.width);
}

void Network::forward(Batch batch, std::span<const SeenForm> forms, const Noise& noise,
                      std::mt19937* random) {
    place(batch);
    seeWords(batch, forms, noise, random);
    if (random != nullptr) drop(noise.inputs, inputs_[0], masks_[0], *random);
    for (std::size_t layer = 0; layer < layers_.size(); ++layer) {
        inputs_[layer + 1] = layers_[layer]->forward(inputs_[layer], boundaries_);
        if (random != nullptr) drop(noise.outputs, inputs_[layer + 1], masks_[layer + 1], *random);
    }
    const std::size_t columns = headWeights_->value.columns();
    scores_.resize(boundaries_.size(), columns);
    for (std::size_t i = 0; i < boundaries_.size(); ++i)
        std::copy_n(headBias_->value.row(0), columns, scores_.row(i));
    const Matrix& last = inputs_.back();
    addProduct({last.row(0), last.columns(), 1}, headWeights_->value.row(0), scores_.row(0), last.rows(),
               last.columns(), columns);
}

void Network::backward() {
    const Matrix& last = inputs_.back();
    const std::size_t columns = headWeights_->value.columns();
    addProduct({last.row(0), 1, last.columns()}, scoreGradient_.row(0), headWeights_->gradient.row(0),
               last.columns(), last.rows(), columns);
    for (std::size_t i = 0; i < last.rows(); ++i)
        addRow(headBias_->gradient.row(0), scoreGradient_.row(i), columns);
    Matrix back(columns, last.columns());
    for (std::size_t r = 0; r < last.columns(); ++r)
        for (std::size_t c = 0; c < columns; ++c)
            back.row(c)[r] = headWeights_->value.row(r)[c];
    Matrix gradient(last.rows(), last.columns());
    addProduct({scoreGradient_.row(0), columns, 1}, back.row(0), gradient.row(0), last.rows(), columns,
               last.columns());
    Matrix before;
    for (std::size_t layer = layers_.size(); layer-- > 0;) {
        multiply(gradient.row(0), masks_[layer + 1].row(0), gradient.values().size());
        layers_[layer]->backward(gradient, before);
        std::swap(gradient, before);
    }
    multiply(gradient.row(0), masks_[0].row(0), gradient.values().size());
    for (std::size_t place = 0; place < seen_.size(); ++place)
        for (const std::uint32_t row : seen_[place])
            rows_.addGradient(row, gradient.row(place + firstReach));
}

ChainLoss::Emissions Network::scoresOf(std::size_t sentence, std::size_t column) const {
    return {scores_.row(starts_[sentence]) + column, scores_.columns(), lengths_[sentence]};
}

double Network::addLabelLoss(std::size_t sentence, std::span<const std::uint16_t> labels, std::size_t column,
                             std::size_t count, float weight) {
    double loss = 0;
    std::vector<float> likely(count);
    for (std::size_t i = 0; i < labels.size(); ++i) {
        if (labels[i] == 0) continue;
        const float* row = scores_.row(starts_[sentence] + i) + column;
        const float highest = *std::max_element(row, row + count);
        float sum = 0;
        for (std::size_t label = 0; label < count; ++label)
            sum += likely[label] = std::exp(row[label] - highest);
        float* gradient = scoreGradient_.row(starts_[sentence] + i) + column;
        for (std::size_t label = 0; label < count; ++label)
            gradient[label] += weight * likely[label] / sum;
        gradient[labels[i]] -= weight;
        loss += static_cast<double>(weight * (std::log(sum) + highest - row[labels[i]]));
    }
    return loss;
}

double Network::addLosses(Batch batch, const LossWeights& weights) {
    scoreGradient_.resize(scores_.rows(), scores_.columns());
    const float share = 1 / static_cast<float>(boundaries_.size());
    double loss = 0;
    for (std::size_t i = 0; i < batch.size(); ++i) {
        const Example& example = *batch[i];
        float* gradient = scoreGradient_.row(starts_[i]);
        const float pos = share * example.posWeight;
        const float names = share * example.nameWeight * weights.names;
        if (!example.pos.empty()) {
            loss += posChain_->addGradient(scoresOf(i, 0), example.pos, pos * weights.pos, gradient);
            loss += addLabelLoss(i, example.fine, fineColumn(), shape_.fineLabels, pos * weights.fine);
            loss += addLabelLoss(i, example.features, featureColumn(), shape_.featureLabels,
                                 pos * weights.features);
        }
        if (!example.names.empty())
            loss +=
                nameChain_->addGradient(scoresOf(i, nameColumn), example.names, names, gradient + nameColumn);
        if (!example.likelyPos.empty())
            loss += posChain_->addSoftGradient(scoresOf(i, 0), example.likelyPos, share * weights.softPos,
                                               gradient);
        if (!example.likelyNames.empty())
            loss += nameChain_->addSoftGradient(scoresOf(i, nameColumn), example.likelyNames,
                                                share * weights.softNames, gradient + nameColumn);
    }
    return loss;
}

double Network::learn(Batch batch, std::span<const SeenForm> forms, const Noise& noise,
                      const LossWeights& weights, std::mt19937& random) {
    forward(batch, forms, noise, &random);
    const double loss = addLosses(batch, weights);
    backward();
    return loss;
}

void Network::step(Step step) {
    const double size = parameters_.gradientSize();
    if (size > static_cast<double>(largestGradient))
        parameters_.scaleGradients(largestGradient / static_cast<float>(size));
    parameters_.step(step);
    rows_.step(step);
}

std::vector<Network::Likelihoods> Network::likelihoods(Batch batch, std::span<const SeenForm> forms) {
    forward(batch, forms, {}, nullptr);
    std::vector<Likelihoods> result(batch.size());
    for (std::size_t i = 0; i < batch.size(); ++i) {
        const auto pos = posChain_->likelihoods(scoresOf(i, 0));
        result[i].pos.assign(pos.begin(), pos.end());
        const auto names = nameChain_->likelihoods(scoresOf(i, nameColumn));
        result[i].names.assign(names.begin(), names.end());
    }
    return result;
}

std::vector<Network::Labels> Network::best(Batch batch, std::span<const SeenForm> forms) {
    forward(batch, forms, {}, nullptr);
    std::vector<Labels> result(batch.size());
    for (std::size_t i = 0; i < batch.size(); ++i)
        result[i] = {posChain_->best(scoresOf(i, 0)), nameChain_->best(scoresOf(i, nameColumn))};
    return result;
}

} // namespace lexiform::train
