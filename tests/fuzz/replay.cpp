// Runs a harness without a fuzzer: on one file or every file of a corpus, and on a fixed number of inputs made from
// those by the same random changes each time.
//   answer_fuzz FILE-OR-FOLDER [COUNT]

#include "tests/fuzz/fuzz_input.h"

#include <QDir>
#include <QFile>

#include <random>

using namespace tetrad::fuzz;

namespace {

QByteArrayList inputsAt(const QString &path)
{
    QByteArrayList inputs;
    const QFileInfo place(path);
    const QDir folder(path, {}, QDir::Name, QDir::Files);
    for (const QFileInfo &entry : place.isDir() ? folder.entryInfoList() : QFileInfoList{place}) {
        QFile file(entry.filePath());
        require(file.open(QIODevice::ReadOnly), "the file can be read", file.fileName());
        inputs.append(file.readAll());
    }
    require(!inputs.isEmpty(), "the corpus has inputs", path);
    return inputs;
}

class Mutator
{
public:
    explicit Mutator(const QByteArrayList &corpus) : m_corpus(corpus) {}

    QByteArray next()
    {
        QByteArray input = m_corpus.at(below(m_corpus.size()));
        for (int changes = 1 + below(12); changes > 0; --changes) {
            change(input);
        }
        return input;
    }

private:
    int below(qsizetype bound)
    {
        // Not a distribution of the library's: those differ from one implementation to the next.
        return static_cast<int>(m_random() % static_cast<quint32>(qMax<qsizetype>(bound, 1)));
    }

    void change(QByteArray &input)
    {
        const int place = below(input.size() + 1);
        switch (below(5)) {
        case 0:
            input.insert(place, static_cast<char>(m_random()));
            break;
        case 1:
            input.remove(place, 1 + below(4));
            break;
        case 2:
            input.replace(place, 1, QByteArray(1, static_cast<char>(m_random())));
            break;
        case 3: {
            const QByteArray &other = m_corpus.at(below(m_corpus.size()));
            input = input.left(place) + other.mid(below(other.size()));
            break;
        }
        default:
            input.insert(place, input.mid(below(input.size()), 1 + below(8)));
        }
    }

    const QByteArrayList &m_corpus;
    std::mt19937 m_random{1}; // NOLINT(bugprone-random-generator-seed): the same inputs every time
};

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
    Mutator mutator(corpus);
    for (int i = 0; i < count; ++i) {
        run(mutator.next());
    }
    std::printf("%lld inputs of the corpus and %d others\n", qint64{corpus.size()}, count);
    std::remove(qgetenv("TEST_PREMATURE_EXIT_FILE").constData());
    return 0;
}
