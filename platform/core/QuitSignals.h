#pragma once

#include <QObject>

#include <functional>
#include <memory>

/// Turns SIGTERM and SIGINT into a call on the main thread's event loop, for as long as the object
/// lives; what the signals did before is back afterwards. Each signal makes one call. One instance
/// at a time, made on the main thread before any worker.
class QuitSignals : public QObject
{
    Q_OBJECT
public:
    explicit QuitSignals(std::function<void(int signalNumber)> handler, QObject *parent = nullptr);
    ~QuitSignals() override;

private:
    class Catcher;

    void handlePending();

    std::function<void(int)> m_handler;
    std::unique_ptr<Catcher> m_catcher; // nothing where the system refused
};
