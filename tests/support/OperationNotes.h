#pragma once

#include "platform/files/FileManager.h"

#include <gtest/gtest.h>

/// Writes down what an operation on files below a folder tells.
class OperationNotes : public FileOperationHandler
{
public:
    explicit OperationNotes(const QString &folder)
        : m_folder(folder)
    {
    }

    bool proceeds = true;            ///< after an error
    size_t stopAfter = 0;            ///< chunks; 0: never
    std::vector<std::string> errors; ///< "Couldn't read a/file"
    std::vector<quint64> chunks;
    QString copied; ///< the last chunk's file

    bool fileManagerCopiedBytes(quint64 bytes, const QString &toPath) override
    {
        chunks.push_back(bytes);
        copied = toPath;
        return chunks.size() == stopAfter;
    }
    bool fileManagerShouldProceedAfterError(const FileError &error) override
    {
        EXPECT_FALSE(error.text.isEmpty());
        errors.push_back((error.what() + u' ' + error.path.mid(m_folder.size() + 1)).toStdString());
        return proceeds;
    }

private:
    const QString m_folder;
};
