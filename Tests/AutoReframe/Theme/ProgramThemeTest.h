#pragma once

#include <KxWidgets/KxUIStyle.h>

#include <QApplication>
#include <QPalette>
#include <QTemporaryDir>

#include <gtest/gtest.h>

/// A program whose configuration is empty.
class ProgramThemeTest : public testing::Test
{
protected:
    static void SetUpTestSuite() { KxUIStyle::Apply(*qApp); }

    ProgramThemeTest()
    {
        qputenv("KX_CONFIG_FILE", m_folder.filePath(QStringLiteral("config.ini")).toLocal8Bit());
        qunsetenv("KX_THEME");
    }
    ~ProgramThemeTest() override { KxUIStyle::SetScheme(*qApp, KxUIStyle::Scheme::Dark); }

    static bool IsLight()
    {
        return KxUIStyle::ShownScheme() == KxUIStyle::Scheme::Light &&
               QApplication::palette().color(QPalette::Window).lightness() > 200;
    }
    static bool IsDark()
    {
        return KxUIStyle::ShownScheme() == KxUIStyle::Scheme::Dark &&
               QApplication::palette().color(QPalette::Window).lightness() < 60;
    }

private:
    QTemporaryDir m_folder;
};
