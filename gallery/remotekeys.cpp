// SPDX-License-Identifier: MIT
#include "remotekeys.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <array>

namespace {

struct Translation
{
    Qt::Key from;
    Qt::Key to;
};

constexpr std::array translations{
    Translation{Qt::Key_Enter, Qt::Key_Return},
    Translation{Qt::Key_Select, Qt::Key_Return},
    Translation{Qt::Key_Space, Qt::Key_Return},
    Translation{Qt::Key_Yes, Qt::Key_Return},
    Translation{Qt::Key_Escape, Qt::Key_Back},
    Translation{Qt::Key_Backspace, Qt::Key_Back},
    Translation{Qt::Key_Cancel, Qt::Key_Back},
    Translation{Qt::Key_Exit, Qt::Key_Back},
    Translation{Qt::Key_Close, Qt::Key_Back},
    Translation{Qt::Key_No, Qt::Key_Back},
    Translation{Qt::Key_MediaPrevious, Qt::Key_AudioRewind},
    Translation{Qt::Key_MediaNext, Qt::Key_AudioForward},
    // What X11 calls play is also the one key of remotes that plays and pauses.
    Translation{Qt::Key_MediaPlay, Qt::Key_MediaTogglePlayPause},
    Translation{Qt::Key_Play, Qt::Key_MediaTogglePlayPause},
    Translation{Qt::Key_F1, Qt::Key_Red},
    Translation{Qt::Key_F2, Qt::Key_Green},
    Translation{Qt::Key_F3, Qt::Key_Yellow},
    Translation{Qt::Key_F4, Qt::Key_Blue},
    Translation{Qt::Key_Home, Qt::Key_HomePage},
    Translation{Qt::Key_TopMenu, Qt::Key_Menu},
    Translation{Qt::Key_MenuKB, Qt::Key_Menu},
    Translation{Qt::Key_Find, Qt::Key_Search},
};

struct ScanCodeTranslation
{
    quint32 from;
    Qt::Key to;
};

// The kernel's numbers. Neither xkb nor Qt has names for all keys of remotes.
constexpr quint32 offset = 8; // Of the numbers that Qt has from xkb.
constexpr std::array scanCodeTranslations{
    ScanCodeTranslation{139 + offset, Qt::Key_Menu}, // KEY_MENU
    ScanCodeTranslation{158 + offset, Qt::Key_Back}, // KEY_BACK
    ScanCodeTranslation{164 + offset, Qt::Key_MediaTogglePlayPause}, // KEY_PLAYPAUSE
    ScanCodeTranslation{168 + offset, Qt::Key_AudioRewind}, // KEY_REWIND
    ScanCodeTranslation{172 + offset, Qt::Key_HomePage}, // KEY_HOMEPAGE
    ScanCodeTranslation{174 + offset, Qt::Key_Back}, // KEY_EXIT
    ScanCodeTranslation{207 + offset, Qt::Key_MediaTogglePlayPause}, // KEY_PLAY
    ScanCodeTranslation{208 + offset, Qt::Key_AudioForward}, // KEY_FASTFORWARD
    ScanCodeTranslation{217 + offset, Qt::Key_Search}, // KEY_SEARCH
    ScanCodeTranslation{352 + offset, Qt::Key_Return}, // KEY_OK
    ScanCodeTranslation{353 + offset, Qt::Key_Return}, // KEY_SELECT
    ScanCodeTranslation{398 + offset, Qt::Key_Red}, // KEY_RED
    ScanCodeTranslation{399 + offset, Qt::Key_Green}, // KEY_GREEN
    ScanCodeTranslation{400 + offset, Qt::Key_Yellow}, // KEY_YELLOW
    ScanCodeTranslation{401 + offset, Qt::Key_Blue}, // KEY_BLUE
};

} // namespace

void RemoteKeys::setWindow(QObject *window)
{
    if (window == m_window)
        return;
    if (m_window)
        m_window->removeEventFilter(this);
    m_window = window;
    if (m_window)
        m_window->installEventFilter(this);
    Q_EMIT windowChanged();
}

bool RemoteKeys::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusOut:
        // Whatever is released now, nobody tells.
        m_held.clear();
        return false;
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
        return !m_isSending && hear(watched, *static_cast<QKeyEvent *>(event));
    default:
        return false;
    }
}

bool RemoteKeys::hear(QObject *watched, QKeyEvent &event)
{
    const bool isPress = event.type() == QEvent::KeyPress;
    const Qt::Key key = meaning(event.key(), event.nativeScanCode());
    const bool isRepeat = event.isAutoRepeat() || (isPress && m_held.contains(key));
    if (isPress)
        m_held.insert(key);
    else if (!isRepeat)
        m_held.remove(key);
    if (key == event.key() && isRepeat == event.isAutoRepeat())
        return false;
    const QString text = key == event.key() ? event.text() : QString();
    QKeyEvent translated(event.type(), key, event.modifiers(), event.nativeScanCode(),
        event.nativeVirtualKey(), event.nativeModifiers(), text, isRepeat, quint16(event.count()));
    m_isSending = true;
    QCoreApplication::sendEvent(watched, &translated);
    m_isSending = false;
    event.setAccepted(translated.isAccepted());
    return true;
}

Qt::Key RemoteKeys::meaning(int key, quint32 scanCode)
{
    if (key == 0 || key == Qt::Key_unknown) {
        const auto found = std::ranges::find(scanCodeTranslations, scanCode, &ScanCodeTranslation::from);
        // NOLINTNEXTLINE(clang-analyzer-optin.core.EnumCastOutOfRange): 0 is how Qt says that it has none.
        return found != scanCodeTranslations.end() ? found->to : Qt::Key(key);
    }
    const auto found = std::ranges::find(translations, key, &Translation::from);
    return found != translations.end() ? found->to : Qt::Key(key);
}
