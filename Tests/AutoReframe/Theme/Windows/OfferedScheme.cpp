#include <Tests/AutoReframe/Theme/OfferedScheme.h>

#include <QGuiApplication>

#include <gtest/gtest.h>

#include <windows.h>

/// A key of its own stands for that of the person while the test runs, in this process alone.
class OfferedScheme::Impl
{
public:
    Impl()
    {
        EXPECT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, Path, 0, nullptr, REG_OPTION_NON_VOLATILE, KEY_ALL_ACCESS, nullptr,
                                  &key, nullptr),
                  ERROR_SUCCESS);
        EXPECT_EQ(RegOverridePredefKey(HKEY_CURRENT_USER, key), ERROR_SUCCESS);
    }
    ~Impl()
    {
        RegOverridePredefKey(HKEY_CURRENT_USER, nullptr);
        RegCloseKey(key);
        RegDeleteTreeW(HKEY_CURRENT_USER, Path);
    }
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    static constexpr const wchar_t* Path = L"Software\\Auto Reframe Test";
    HKEY key = nullptr;
};

OfferedScheme::OfferedScheme()
    : m_impl(std::make_unique<Impl>())
{
}

OfferedScheme::~OfferedScheme() = default;

void OfferedScheme::Offer(KxUIStyle::Scheme scheme)
{
    const DWORD isLight = scheme == KxUIStyle::Scheme::Light ? 1 : 0;
    EXPECT_EQ(RegSetKeyValueW(m_impl->key, L"Software\\Microsoft\\Windows\\CurrentVersion\\Themes\\Personalize",
                              L"AppsUseLightTheme", REG_DWORD, &isLight, sizeof isLight),
              ERROR_SUCCESS);
}

void OfferedScheme::Change(KxUIStyle::Scheme scheme)
{
    Offer(scheme);
    // The person comes back from the system's settings.
    Q_EMIT qGuiApp->applicationStateChanged(Qt::ApplicationActive);
}
