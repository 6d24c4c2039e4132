// Runs a harness without a fuzzer: on one file or every file of a corpus, and on a fixed number of inputs made from
// those by the same random changes each time.
//   answer_fuzz FILE-OR-FOLDER [COUNT]

#include "tests/fuzz/fuzz_input.h"

#include <QDirIterator>
#include <QFile>

#include <random>

using namespace tetrad::fuzz;

namespace {

std::mt19937 random(1); // NOLINT(bugprone-random-generator-seed): the same inputs every time

// Not a distribution of the library's: those differ from one implementation to the next.
qsizetype below(qsizetype bound)
{
    return static_cast<qsizetype>(random() % static_cast<quint32>(qMax<qsizetype>(bound, 1)));
}

QByteArrayList inputsAt(const QString &path)
{
    QStringList names;
    for (QDirIterator folder(path, QDir::Files); folder.hasNext();) {
        names.append(folder.next());
    }
    names.sort();
    QByteArrayList inputs;
    for (const QString &name : names.isEmpty() ? QStringList{path} : names) {
        QFile file(name);
        require(file.open(QIODevice::ReadOnly), "the file can be read", name);
        inputs.append(file.readAll());
    }
    return inputs;
}

// Up to twelve times, a few bytes give way to a random one, to nothing, or to a part of another input.
QByteArray made(const QByteArrayList &corpus)
{
    QByteArray input = corpus.at(below(corpus.size()));
    for (qsizetype changes = 1 + below(12); changes > 0; --changes) {
        const QByteArray &other = corpus.at(below(corpus.size()));
        const QByteArray parts[] = {QByteArray(1, static_cast<char>(random())), QByteArray(),
                                    other.mid(below(other.size()), 1 + below(40))};
        input.replace(below(input.size() + 1), below(4), parts[below(std::size(parts))]);
    }
    return input;
}

void run(const QByteArray &input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(input.constData()), static_cast<size_t>(input.size()));
}

} // namespace

int main(int argc, char **argv)
{
    require(argc == 2 || argc == 3, "a file or folder is given, and perhaps a number of inputs to make");
    const QByteArrayList corpus = inputsAt(QString::fromLocal8Bit(argv[1]));
    const int count = argc == 3 ? std::atoi(argv[2]) : 0;
    std::for_each(corpus.begin(), corpus.end(), run);
    for (int i = 0; i < count; ++i) {
        run(made(corpus));
    }
    std::printf("%lld inputs of the corpus and %d others\n", qint64{corpus.size()}, count);
    std::remove(qgetenv("TEST_PREMATURE_EXIT_FILE").constData());
    return 0;
}
