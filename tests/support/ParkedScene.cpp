#include "support/ParkedScene.h"

#include <QProcess>
#include <cmath>
#include <set>
#include <stdexcept>

namespace ParkedScene {

void generate(const Options &o, const QString &dest)
{
    constexpr int fps = 36;
    constexpr int walkerWidth = 24, walkerHeight = 80;
    // A still texture (noise without its temporal flag stays put), sensor noise over it, brightness rising in steps.
    QString graph = QStringLiteral("[0]noise=alls=40:allf=u,noise=alls=%1:allf=t,eq=brightness='-0.1+0.003*t':eval=frame[s0]")
                        .arg(o.noise);
    QStringList inputs{QStringLiteral("-f"), QStringLiteral("lavfi"), QStringLiteral("-i"),
                       QStringLiteral("color=c=0x707a80:s=%1x%2:r=%3").arg(o.width).arg(o.height).arg(fps)};
    for (size_t i = 0; i < o.walkers.size(); ++i) {
        const Walker &w = o.walkers[i];
        inputs << QStringLiteral("-f") << QStringLiteral("lavfi") << QStringLiteral("-i")
               << QStringLiteral("color=c=0x282828:s=%1x%2:r=%3").arg(walkerWidth).arg(walkerHeight).arg(fps);
        const double speed = (o.width + walkerWidth) / (w.leaves - w.enters);
        graph += QStringLiteral(";[s%1][%2]overlay=x='-%3+(t-%4)*%5':y=%6:enable='between(t,%4,%7)'[s%8]")
                     .arg(i)
                     .arg(i + 1)
                     .arg(walkerWidth)
                     .arg(w.enters)
                     .arg(speed)
                     .arg(o.height / 3)
                     .arg(w.leaves)
                     .arg(i + 1);
    }
    QStringList args{QStringLiteral("-hide_banner"), QStringLiteral("-loglevel"), QStringLiteral("error"),
                     QStringLiteral("-y")};
    args << inputs << QStringLiteral("-filter_complex") << graph << QStringLiteral("-map")
         << QStringLiteral("[s%1]").arg(o.walkers.size()) << QStringLiteral("-t") << QString::number(o.seconds)
         << QStringLiteral("-c:v") << QStringLiteral("libx264") << QStringLiteral("-preset") << QStringLiteral("ultrafast")
         << QStringLiteral("-pix_fmt") << QStringLiteral("yuvj420p") << QStringLiteral("-g") << QString::number(fps)
         << QStringLiteral("-an") << dest;
    QProcess p;
    p.start(QStringLiteral("ffmpeg"), args);
    if (!p.waitForFinished(180000) || p.exitStatus() != QProcess::NormalExit || p.exitCode() != 0)
        throw std::runtime_error("ffmpeg could not make the scene: " + p.readAllStandardError().toStdString());
}

std::vector<int> movingSeconds(const Options &o)
{
    std::set<int> seconds;
    for (const Walker &w : o.walkers)
        for (int s = int(std::floor(w.enters)); s < int(std::ceil(w.leaves)); ++s)
            seconds.insert(s);
    return {seconds.begin(), seconds.end()};
}

} // namespace ParkedScene
