// Stands in for the fuzzer's own main() where there is none: feeds the files of the folders it is given, and
// so many seeded variations of them (the first argument), to the fuzz program it is linked with.

#include <QByteArray>
#include <QDir>
#include <QRandomGenerator>
#include <QVector>

#include <cstdint>
#include <cstdio>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv);
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void feed(const QByteArray& input)
{
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(input.constData()),
                           static_cast<std::size_t>(input.size()));
}

QByteArray varied(QByteArray input, const QVector<QByteArray>& corpus, QRandomGenerator& random)
{
    for (quint32 changes = 1 + random.bounded(6); changes > 0; --changes) {
        const int at = int(random.bounded(quint32(input.size() + 1)));
        switch (random.bounded(4)) {
        case 0:
            input.insert(at, char(random.bounded(256)));
            break;
        case 1:
            input.remove(at, 1 + int(random.bounded(8)));
            break;
        case 2:
            input.insert(at, corpus.at(int(random.bounded(quint32(corpus.size())))).mid(at, 12));
            break;
        default:
            if (at < input.size())
                input[at] = char(random.bounded(256));
        }
    }
    return input;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 3) {
        std::fprintf(stderr, "usage: %s VARIATIONS FOLDER…\n", argv[0]);
        return 2;
    }
    LLVMFuzzerInitialize(&argc, &argv);
    QVector<QByteArray> corpus;
    for (int i = 2; i < argc; ++i) {
        QDir folder(QString::fromLocal8Bit(argv[i]));
        for (const QString& name : folder.entryList(QDir::Files, QDir::Name)) {
            QFile file(folder.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                corpus += file.readAll();
        }
    }
    if (corpus.isEmpty()) {
        std::fprintf(stderr, "no inputs\n");
        return 1;
    }
    for (const QByteArray& input : qAsConst(corpus))
        feed(input);
    QRandomGenerator random(1);
    const int variations = QByteArray(argv[1]).toInt();
    for (int i = 0; i < variations; ++i)
        feed(varied(corpus.at(i % corpus.size()), corpus, random));
    std::printf("%d inputs and %d variations of them\n", int(corpus.size()), variations);
    return 0;
}
