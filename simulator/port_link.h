#pragma once

#include <QString>

namespace kvsim {

/// A symbolic link with a fixed name to a port whose name changes. It is replaced atomically, so that a reader sees the
/// old target or the new one, and is removed with this object.
class PortLink
{
public:
    /// @param path path of the link; empty: there is none and all operations do nothing
    explicit PortLink(const QString &path) : m_path(path) {}
    ~PortLink() { remove(); }
    Q_DISABLE_COPY_MOVE(PortLink)

    /// Points the link at `target`. A file that is not a symbolic link is never replaced.
    /// @return false with a sentence in `error`
    bool pointTo(const QString &target, QString *error);
    /// Removes the link if it still points where this object pointed it.
    void remove();

private:
    QString m_path;
    QString m_target;
};

} // namespace kvsim
