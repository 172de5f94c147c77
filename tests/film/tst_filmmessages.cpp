#include "film/FilmMessageReader.h"

#include <QtTest>

#include <vector>

namespace {

QImage gradient(int width, int height)
{
    QImage image(width, height, QImage::Format_RGB32);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            image.setPixel(x, y, qRgb(x * 40 % 256, y * 70 % 256, (x + y) * 13 % 256));
    return image;
}

// Everything the reader gives back after being fed the bytes in pieces of the
// given size.
std::vector<FilmMessage> readInPieces(const QByteArray& wire, int piece, bool* damaged = nullptr)
{
    FilmMessageReader reader;
    std::vector<FilmMessage> messages;
    for (qsizetype at = 0; at < wire.size(); at += piece) {
        reader.feed(wire.mid(at, piece));
        while (std::optional<FilmMessage> message = reader.next())
            messages.push_back(*message);
    }
    if (damaged)
        *damaged = reader.damaged();
    return messages;
}

} // namespace

// The news of the film player arrives whole and unchanged however the pipe cuts
// it up, and output that breaks the format stops the reading instead of asking
// for absurd frames.
class FilmMessagesTest : public QObject
{
    Q_OBJECT

private slots:
    void everyMessageArrivesWholeInPiecesOfAnySize_data();
    void everyMessageArrivesWholeInPiecesOfAnySize();
    void brokenOutputDamagesTheChannel_data();
    void brokenOutputDamagesTheChannel();
};

void FilmMessagesTest::everyMessageArrivesWholeInPiecesOfAnySize_data()
{
    QTest::addColumn<int>("piece");
    for (int piece : {1, 3, 7, 64, 1000, 1 << 20})
        QTest::addRow("%d bytes", piece) << piece;
}

void FilmMessagesTest::everyMessageArrivesWholeInPiecesOfAnySize()
{
    QFETCH(int, piece);
    const std::vector<FilmMessage> sent = {{FilmMessage::Duration, 10'040, {}, {}},
        {FilmMessage::Frame, 0, {}, gradient(7, 5)}, {FilmMessage::Playing, 0, {}, {}},
        {FilmMessage::Position, 120, {}, {}}, {FilmMessage::Frame, 0, {}, gradient(320, 224)},
        {FilmMessage::Error, 0, "Could not\ndemultiplex  stream. ", {}}, {FilmMessage::Paused, 0, {}, {}},
        {FilmMessage::Stopped, 0, {}, {}}};
    QByteArray wire;
    for (const FilmMessage& message : sent)
        wire += message.encoded();
    // A line of a kind a later player might add is passed over.
    wire.insert(wire.indexOf("state playing"), "volume 0.5\n");

    bool damaged = true;
    const std::vector<FilmMessage> got = readInPieces(wire, piece, &damaged);
    QVERIFY(!damaged);
    QCOMPARE(got.size(), sent.size());
    for (size_t i = 0; i < sent.size(); ++i) {
        QCOMPARE(got[i].kind, sent[i].kind);
        QCOMPARE(got[i].milliseconds, sent[i].milliseconds);
        QCOMPARE(got[i].frame, sent[i].frame);
    }
    // An error is one line on the wire, so its wording is tidied into one.
    QCOMPARE(got[5].text, QString("Could not demultiplex stream."));
}

void FilmMessagesTest::brokenOutputDamagesTheChannel_data()
{
    QTest::addColumn<QByteArray>("wire");
    QTest::newRow("endless line") << QByteArray(FilmMessageReader::LongestLine + 10, 'x');
    QTest::newRow("overlong line") << QByteArray(FilmMessageReader::LongestLine + 10, 'x') + '\n';
    QTest::newRow("huge frame") << QByteArray("frame 100000 100000\n");
    QTest::newRow("empty frame") << QByteArray("frame 0 5\n");
    QTest::newRow("negative frame") << QByteArray("frame -4 5\n");
    QTest::newRow("frame without size") << QByteArray("frame\n");
    QTest::newRow("frame with three sides") << QByteArray("frame 2 2 2\n");
}

void FilmMessagesTest::brokenOutputDamagesTheChannel()
{
    QFETCH(QByteArray, wire);
    // Whatever follows the damage is not read as news.
    wire += FilmMessage{FilmMessage::Duration, 500, {}, {}}.encoded();
    bool damaged = false;
    QVERIFY(readInPieces(wire, 1000, &damaged).empty());
    QVERIFY(damaged);
}

QTEST_GUILESS_MAIN(FilmMessagesTest)
#include "tst_filmmessages.moc"
