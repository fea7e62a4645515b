#pragma once

#include "ui/state/picture.h"

#include <QList>
#include <QMutex>
#include <QObject>
#include <QThreadPool>

namespace Mirrix {

/// One file whose picture a view asks for.
struct PictureRequest
{
    MirrixCore::FileEntry file;
    QSize bounds; ///< device pixels
};

/// What was found out about a file.
struct LoadedPicture
{
    MirrixCore::FileEntry file; ///< with its media members where a FactsReader is set
    Picture picture;
};

/// Reads pictures on its own threads, those asked for last before all others. Interface thread only; the destructor
/// waits for the pictures being decoded.
class PictureLoader : public QObject
{
    Q_OBJECT

public:
    explicit PictureLoader(QObject *parent = nullptr);
    ~PictureLoader() override;

    /// May be called at any time; a reader must be safe to run on several threads.
    void setPictureReader(PictureReader reader);
    void setFactsReader(FactsReader reader);

    /// Replaces everything that still waits, most urgent first. What is being decoded is finished and still delivered.
    void request(QList<PictureRequest> requests);

signals:
    void loaded(const Mirrix::LoadedPicture &loaded);

private:
    void work();

    QMutex m_mutex; ///< for the members up to the pool
    QList<PictureRequest> m_pending;
    PictureReader m_readPicture = readPicture;
    FactsReader m_readFacts;
    int m_workers = 0;
    QThreadPool m_pool;
};

} // namespace Mirrix
