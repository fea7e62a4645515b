#include "core/media/mediakinds.h"

#include "core/platform/pathtext.h"

#include <QSet>

namespace MirrixCore {

namespace {

QStringList listFrom(const char *extensions)
{
    return QString::fromLatin1(extensions).split(QLatin1Char(' '));
}

QSet<QString> setFrom(const QStringList &list)
{
    return {list.begin(), list.end()};
}

} // namespace

const QStringList &rawExtensions()
{
    static const QStringList list = listFrom("raw cr2 nef arw dng rw2 orf srw "
                                             "3fr bay cap cr3 crw dcr dcs erf fff gpr iiq k25 kdc mef mos mrw nrw pef "
                                             "ptx pxn raf rwl sr2 srf x3f");
    return list;
}

const QStringList &imageExtensions()
{
    static const QStringList list = [] {
        QStringList all = listFrom("jpg jpeg png bmp gif webp tif tiff heic raw cr2 nef "
                                   "jfif jpe jpf jpx jp2 j2k jxl avif heif hif apng dib ico icns tga pcx psd svg svgz "
                                   "pbm pgm ppm pnm xbm xpm wbmp sgi ras exr hdr pic qoi");
        all += rawExtensions();
        all.removeDuplicates();
        return all;
    }();
    return list;
}

const QStringList &audioExtensions()
{
    static const QStringList list = listFrom("mp3 wav flac aac m4a ogg wma ape alac opus aiff "
                                             "aif aifc oga mka m4b m4r wv tta mpc mp+ mpp mp2 mp1 mpa ac3 eac3 dts "
                                             "dtshd amr awb au snd caf dsf dff ra ram spx w64 rf64 bwf mid midi "
                                             "mod s3m xm it shn tak ofr voc gsm 3ga");
    return list;
}

const QStringList &videoExtensions()
{
    static const QStringList list = listFrom("mp4 mkv avi mov wmv flv webm m4v ts mts m2ts mpg mpeg rmvb "
                                             "rm asf 3gp 3g2 3gpp f4v vob ogv ogm mpe m1v m2v mp2v mpv m2t tp trp tod "
                                             "mod dv dif divx xvid mxf qt wtv dvr-ms amv mjpg mjpeg h264 h265 hevc ivf "
                                             "y4m bik nsv roq");
    return list;
}

const QStringList &extensionsOf(SearchMode mode)
{
    static const QStringList every;
    switch (mode) {
    case SearchMode::Images:
        return imageExtensions();
    case SearchMode::Audio:
        return audioExtensions();
    case SearchMode::Video:
        return videoExtensions();
    case SearchMode::Files:
        break;
    }
    return every;
}

bool isMediaFile(const QString &path, SearchMode mode)
{
    static const QSet<QString> images = setFrom(imageExtensions());
    static const QSet<QString> audio = setFrom(audioExtensions());
    static const QSet<QString> video = setFrom(videoExtensions());
    switch (mode) {
    case SearchMode::Images:
        return images.contains(suffixOf(path));
    case SearchMode::Audio:
        return audio.contains(suffixOf(path));
    case SearchMode::Video:
        return video.contains(suffixOf(path));
    case SearchMode::Files:
        break;
    }
    return false;
}

bool isRawFile(const QString &path)
{
    static const QSet<QString> raw = setFrom(rawExtensions());
    return raw.contains(suffixOf(path));
}

} // namespace MirrixCore
