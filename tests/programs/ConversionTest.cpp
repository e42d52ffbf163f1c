// The real converter, by itself and through the real queue.

#include "ProgramHarness.h"

#include "modules/movies/ConversionProgress.h"
#include "platform/core/ChildProcess.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>

namespace {

QByteArray outputOf(const QString &program, const QStringList &arguments)
{
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(60000)) << qPrintable(arguments.join(u' '));
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return process.readAllStandardOutput();
}

/// What ffprobe says of a file: its streams by their kind, and "format".
QJsonObject probe(const QString &path)
{
    const QJsonObject all =
        QJsonDocument::fromJson(
            outputOf(QStringLiteral("ffprobe"),
                     {QStringLiteral("-loglevel"), QStringLiteral("error"),
                      QStringLiteral("-show_streams"), QStringLiteral("-show_format"),
                      QStringLiteral("-of"), QStringLiteral("json"), path}))
            .object();
    QJsonObject result{{QStringLiteral("format"), all.value(QStringLiteral("format"))}};
    for (const QJsonValue &stream : all.value(QStringLiteral("streams")).toArray())
        result.insert(stream[QStringLiteral("codec_type")].toString(), stream);
    return result;
}

class ConversionTest : public testing::Test
{
protected:
    TemporaryFolder folder;

    /// A clip made with ffmpeg's test sources.
    QString clip(const QString &name, const QString &size, const QStringList &audio,
                 int seconds) const
    {
        QString path = folder / name;
        QStringList arguments{
            QStringLiteral("-loglevel"),
            QStringLiteral("error"),
            QStringLiteral("-f"),
            QStringLiteral("lavfi"),
            QStringLiteral("-i"),
            QStringLiteral("testsrc=size=%1:rate=25:duration=%2").arg(size).arg(seconds)};
        if (!audio.isEmpty())
            arguments << QStringLiteral("-f") << QStringLiteral("lavfi") << QStringLiteral("-i")
                      << QStringLiteral("sine=duration=%1").arg(seconds) << audio;
        outputOf(QStringLiteral("ffmpeg"),
                 arguments << QStringLiteral("-c:v") << QStringLiteral("mpeg4") << path);
        return path;
    }

    /// Runs the converter to its end and returns its exit status.
    int convert(const QString &source, int resolution, int quality)
    {
        m_chunks.clear();
        ChildProcess converter;
        std::optional<int> status;
        QObject::connect(&converter, &ChildProcess::output, &converter,
                         [this](const QByteArray &chunk) { m_chunks.append(chunk); });
        QObject::connect(&converter, &ChildProcess::ended, &converter,
                         [&status](int exitStatus) { status = exitStatus; });
        converter.start(ProgramHarness::resource(QStringLiteral("convert.sh")),
                        {source, QStringLiteral("A \"Title\""), movie, thumbnail,
                         QString::number(resolution), QString::number(quality), QStringLiteral("2"),
                         QStringLiteral("1"), QStringLiteral("0"), QStringLiteral("100"),
                         QStringLiteral("0"), QString()},
                        folder.path());
        waitFor([&] { return status.has_value(); });
        return status.value_or(-2);
    }

    QByteArray output() const { return m_chunks.join(); }

    QString movie = folder / QStringLiteral("CONVERT.MP4");
    QString thumbnail = folder / QStringLiteral("CONVERT.THM");
    QList<QByteArray> m_chunks;
};

} // namespace

TEST_F(ConversionTest, MakesWhatThePSPPlays)
{
    const QStringList mono{QStringLiteral("-ac"), QStringLiteral("1")};
    const QStringList surround{QStringLiteral("-ac"), QStringLiteral("6")};
    const QString wide = clip(QStringLiteral("wide.mkv"), QStringLiteral("640x360"), mono, 2);
    const struct
    {
        QString source;
        int resolution;
        int quality;
        int width;
        int height;
    } cases[] = {
        {wide, 0, 0, 320, 180},
        {wide, 1, 1, 368, 206},
        {wide, 2, 2, 480, 270},
        {wide, 3, 3, 720, 404},
        {clip(QStringLiteral("silent.mkv"), QStringLiteral("320x240"), {}, 1), 0, 2, 320, 240},
        {clip(QStringLiteral("odd.mkv"), QStringLiteral("333x221"), mono, 1), 2, 2, 408, 272},
        {clip(QStringLiteral("portrait.mkv"), QStringLiteral("240x426"), mono, 1), 2, 2, 152, 272},
        {clip(QStringLiteral("surround.mkv"), QStringLiteral("320x240"), surround, 1), 0, 2, 320,
         240},
    };
    for (const auto &c : cases) {
        const std::string what = c.source.section(u'/', -1).toStdString() + " " +
                                 std::to_string(c.resolution) + " " + std::to_string(c.quality);
        ASSERT_EQ(convert(c.source, c.resolution, c.quality), 0) << what << output().constData();
        const QJsonObject made = probe(movie);
        const QJsonObject video = made.value(QStringLiteral("video")).toObject();
        const QJsonObject audio = made.value(QStringLiteral("audio")).toObject();
        const auto text = [](const QJsonObject &stream, const char *key) {
            return stream.value(QLatin1String(key)).toString();
        };
        EXPECT_EQ(text(video, "codec_name"), QStringLiteral("h264")) << what;
        EXPECT_EQ(text(video, "codec_tag_string"), QStringLiteral("avc1")) << what;
        EXPECT_THAT(text(video, "profile").toStdString(),
                    testing::AnyOf("Main", "Baseline", "Constrained Baseline"));
        EXPECT_LE(video.value(QStringLiteral("level")).toInt(), 30) << what;
        EXPECT_EQ(text(video, "pix_fmt"), QStringLiteral("yuv420p")) << what;
        EXPECT_NEAR(video.value(QStringLiteral("width")).toInt(), c.width, 2) << what;
        EXPECT_NEAR(video.value(QStringLiteral("height")).toInt(), c.height, 2) << what;
        EXPECT_EQ(video.value(QStringLiteral("width")).toInt() % 2, 0) << what;
        EXPECT_EQ(text(video, "r_frame_rate"),
                  c.quality == 0 ? QStringLiteral("1497/100") : QStringLiteral("30000/1001"))
            << what;
        EXPECT_EQ(text(audio, "codec_name"), QStringLiteral("aac")) << what;
        EXPECT_EQ(text(audio, "profile"), QStringLiteral("LC")) << what;
        EXPECT_EQ(text(audio, "sample_rate"), QStringLiteral("48000")) << what;
        EXPECT_EQ(audio.value(QStringLiteral("channels")).toInt(), 2) << what;
        EXPECT_EQ(made[QStringLiteral("format")][QStringLiteral("tags")][QStringLiteral("title")]
                      .toString(),
                  QStringLiteral("A \"Title\""));
        const QJsonObject picture = probe(thumbnail).value(QStringLiteral("video")).toObject();
        EXPECT_EQ(text(picture, "codec_name"), QStringLiteral("mjpeg")) << what;
        EXPECT_EQ(picture.value(QStringLiteral("width")).toInt(), 160) << what;
        EXPECT_EQ(picture.value(QStringLiteral("height")).toInt(), 120) << what;
    }
}

TEST_F(ConversionTest, TellsHowFarItIs)
{
    const QString source = clip(QStringLiteral("long.mkv"), QStringLiteral("640x360"), {}, 10);
    for (const int quality : {0, 3}) {
        ASSERT_EQ(convert(source, 3, quality), 0) << output().constData();
        ConversionProgress progress(quality);
        QList<int> percents;
        for (const QByteArray &chunk : m_chunks) {
            if (progress.take(chunk) && progress.text().contains(u'%'))
                percents.append(progress.text().section(u' ', 3, 3).chopped(1).toInt());
        }
        const QJsonObject video = probe(movie).value(QStringLiteral("video")).toObject();
        const int frames = video.value(QStringLiteral("nb_frames")).toString().toInt();
        EXPECT_NEAR(static_cast<int>(progress.totalFrames()), frames, 2);
        ASSERT_GE(percents.size(), 2) << output().constData();
        EXPECT_TRUE(std::is_sorted(percents.begin(), percents.end()));
        EXPECT_GE(percents.last(), 90);
    }
}

TEST_F(ConversionTest, LeavesNothingHalf)
{
    const QString broken = folder / QStringLiteral("broken.avi");
    writeFile(broken, "no movie at all");
    EXPECT_GT(convert(broken, 0, 2), 0);
    EXPECT_EQ(output().count('\n'), 1) << output().constData();
    EXPECT_GT(convert(folder / QStringLiteral("missing.avi"), 0, 2), 0);

    const QString source = clip(QStringLiteral("long.mkv"), QStringLiteral("640x360"), {}, 30);
    const QStringList before = treeOf(folder.path());
    ChildProcess converter;
    bool began = false;
    bool ended = false;
    QObject::connect(&converter, &ChildProcess::output, &converter,
                     [&](const QByteArray &chunk) { began |= chunk.startsWith("frame="); });
    QObject::connect(&converter, &ChildProcess::ended, &converter, [&] { ended = true; });
    converter.start(ProgramHarness::resource(QStringLiteral("convert.sh")),
                    {source, QStringLiteral("t"), movie, thumbnail, QStringLiteral("3"),
                     QStringLiteral("3"), QStringLiteral("3"), QStringLiteral("1"),
                     QStringLiteral("0"), QStringLiteral("100"), QStringLiteral("0"), QString()},
                    folder.path());
    ASSERT_TRUE(waitFor([&] { return began; }));
    EXPECT_GT(treeOf(folder.path()).size(), before.size());
    converter.terminate();
    ASSERT_TRUE(waitFor([&] { return ended; }));
    EXPECT_EQ(treeOf(folder.path()), before);
    QProcess children;
    children.start(QStringLiteral("pgrep"), {QStringLiteral("-f"), source});
    children.waitForFinished();
    EXPECT_EQ(children.exitCode(), 1) << "a child lives on: " << children.readAll().constData();
}

TEST_F(ConversionTest, FillsTheStickThroughTheQueue)
{
    ProgramHarness programs;
    programs.startHelper();
    programs.insertStick();
    const auto statusHas = [&](const QString &text) {
        return programs.caravel({QStringLiteral("status")}).output.contains(text);
    };
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Available")); }));
    EXPECT_EQ(programs.caravel({QStringLiteral("sync")}).status, 0); // no longer its first
    QStringList add{QStringLiteral("movies"), QStringLiteral("add")};
    const QStringList mono{QStringLiteral("-ac"), QStringLiteral("1")};
    add << clip(QStringLiteral("one.mkv"), QStringLiteral("320x240"), mono, 2)
        << clip(QStringLiteral("two.mkv"), QStringLiteral("640x360"), mono, 60)
        << clip(QStringLiteral("three.mkv"), QStringLiteral("320x240"), mono, 2);
    EXPECT_EQ(programs.caravel(add).status, 0);
    EXPECT_EQ(programs
                  .caravel({QStringLiteral("movies"), QStringLiteral("add"),
                            folder / QStringLiteral("none.mkv")})
                  .status,
              1);
    // The second one is being converted when it is removed.
    ASSERT_TRUE(waitFor([&] {
        return programs.caravel({QStringLiteral("list"), QStringLiteral("movies")})
            .output.contains(QStringLiteral("Size:"));
    }));
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Movies:")); }));
    const QStringList remove{QStringLiteral("movies"), QStringLiteral("remove")};
    EXPECT_EQ(programs.caravel(remove + QStringList{QStringLiteral("two")}).status, 0);
    EXPECT_EQ(programs.caravel(remove + QStringList{QStringLiteral("nothing")}).status, 1);
    // The queue's end starts the sync.
    const QStringList movies{QStringLiteral("100MNV01/"), QStringLiteral("100MNV01/M4V00001.MP4"),
                             QStringLiteral("100MNV01/M4V00001.THM"),
                             QStringLiteral("100MNV01/M4V00002.MP4"),
                             QStringLiteral("100MNV01/M4V00002.THM")};
    EXPECT_TRUE(
        waitFor([&] { return treeOf(programs.stick(QStringLiteral("MP_ROOT"))) == movies; }));
    ASSERT_TRUE(waitFor([&] { return statusHas(QStringLiteral("Sync Successful")); }));
    EXPECT_EQ(treeOf(programs.stick(QStringLiteral("MP_ROOT"))), movies);
    EXPECT_EQ(treeOf(programs.home(QStringLiteral("Documents/Caravel/Movies")))
                  .filter(QStringLiteral("MP4")),
              (QStringList{QStringLiteral("M4V00001/one/M4V00001.MP4"),
                           QStringLiteral("M4V00002/three/M4V00002.MP4")}));
    EXPECT_EQ(programs.stopHelper(), 0);
}
