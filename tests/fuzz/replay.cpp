// Runs a harness without a fuzzer: on every file of its corpus and on a fixed number of inputs made from those
// by the same random changes each time.
//   answer_fuzz CORPUS COUNT    or, for the one input of a finding:    answer_fuzz FILE

#include "tests/fuzz/fuzz_input.h"

#include <QByteArray>
#include <QDir>
#include <QFile>

#include <random>
#include <vector>

using namespace tetrad::fuzz;

namespace {

using Random = std::mt19937;

int below(Random &random, qsizetype bound)
{
    // Not a distribution of the library's: those differ from one implementation to the next.
    return static_cast<int>(random() % static_cast<quint32>(qMax<qsizetype>(bound, 1)));
}

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    require(file.open(QIODevice::ReadOnly), "the file can be read", path);
    return file.readAll();
}

std::vector<QByteArray> corpusIn(const QString &folder)
{
    std::vector<QByteArray> inputs;
    for (const QFileInfo &file : QDir(folder).entryInfoList(QDir::Files, QDir::Name)) {
        inputs.push_back(contentOf(file.filePath()));
    }
    require(!inputs.empty(), "the corpus has inputs", folder);
    return inputs;
}

QByteArray changed(QByteArray input, const std::vector<QByteArray> &corpus, Random &random)
{
    const int place = below(random, input.size() + 1);
    switch (below(random, 5)) {
    case 0:
        return input.insert(place, static_cast<char>(random()));
    case 1:
        return input.remove(place, 1 + below(random, 4));
    case 2:
        return place < input.size() ? input.replace(place, 1, QByteArray(1, static_cast<char>(random()))) : input;
    case 3: {
        const QByteArray &other = corpus[static_cast<size_t>(below(random, static_cast<qsizetype>(corpus.size())))];
        return input.left(place) + other.mid(below(random, other.size()));
    }
    default: {
        const QByteArray piece = input.mid(below(random, input.size()), 1 + below(random, 8));
        return input.insert(place, piece);
    }
    }
}

void run(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()), static_cast<size_t>(input.size()));
}

void runOnCorpus(const QString &folder, int count)
{
    const std::vector<QByteArray> corpus = corpusIn(folder);
    for (const QByteArray &input : corpus) {
        run(input);
    }
    Random random(1); // NOLINT(bugprone-random-generator-seed): the same inputs every time
    for (int i = 0; i < count; ++i) {
        QByteArray input = corpus[static_cast<size_t>(i) % corpus.size()];
        for (int changes = 1 + below(random, 12); changes > 0; --changes) {
            input = changed(input, corpus, random);
        }
        run(input);
    }
    std::printf("%zu inputs of the corpus and %d others\n", corpus.size(), count);
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 3) {
        runOnCorpus(QString::fromLocal8Bit(argv[1]), std::atoi(argv[2]));
    } else if (argc == 2) {
        run(contentOf(QString::fromLocal8Bit(argv[1])));
    } else {
        std::fputs("usage: HARNESS CORPUS COUNT, or HARNESS FILE\n", stderr);
        return 2;
    }
    return 0;
}
