#pragma once

#include <Apps/AutoReframe/Store/LibraryDatabase.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A library in a folder of its own.
class TestLibraryDatabase : public testing::Test
{
protected:
    static StoredVideo Video(const QString& path)
    {
        StoredVideo video;
        video.path = path;
        video.fileBytes = 1234567890123;
        video.contentHash = "0123456789abcdef";
        video.resolution = QSize(1920, 1080);
        video.frameRate = {30000, 1001};
        video.frameCount = 4242;
        return video;
    }
    std::unique_ptr<LibraryDatabase> Open() const
    {
        KxResult<std::unique_ptr<LibraryDatabase>> opened = LibraryDatabase::Open(m_path);
        EXPECT_TRUE(opened) << opened.Message().toStdString();
        return opened ? std::move(*opened) : nullptr;
    }
    static StoredContents Contents(LibraryDatabase& database)
    {
        const KxResult<StoredContents> contents = database.ReadContents();
        EXPECT_TRUE(contents) << contents.Message().toStdString();
        return contents ? *contents : StoredContents();
    }
    static QStringList Paths(LibraryDatabase& database)
    {
        QStringList paths;
        for (const StoredVideo& video : Contents(database).videos) {
            paths += video.path;
        }
        return paths;
    }
    static VideoEdits Edits(LibraryDatabase& database, const char* path)
    {
        return Contents(database).edits.value(QLatin1String(path));
    }
    static QVariant Value(LibraryDatabase& database, const char* statement)
    {
        const KxResult<QVariant> value = database.Connection().Value(QLatin1String(statement));
        EXPECT_TRUE(value) << value.Message().toStdString();
        return value ? *value : QVariant();
    }
    QStringList Files(const char* pattern) const
    {
        return QDir(m_folder.path()).entryList({QLatin1String(pattern)}, QDir::Files);
    }
    void Write(const QByteArray& content) const
    {
        QFile file(m_path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(content), content.size());
    }

    QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("library.db"));
};
