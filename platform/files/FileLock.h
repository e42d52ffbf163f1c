#pragma once

/// A lock that FileManager::lock() gave, held as long as this lives. It may go on another thread
/// than it came.
class FileLock
{
public:
    /// Takes an open and locked descriptor over.
    explicit FileLock(int descriptor)
        : m_descriptor(descriptor)
    {
    }
    FileLock(FileLock &&other) noexcept;
    ~FileLock();
    FileLock(const FileLock &) = delete;
    FileLock &operator=(const FileLock &) = delete;
    FileLock &operator=(FileLock &&) = delete;

private:
    int m_descriptor; // negative once moved away
};
