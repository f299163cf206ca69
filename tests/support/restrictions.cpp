#include "restrictions.h"

#include "testfiles.h"

#include <sys/stat.h>
#include <unistd.h>

OrdinaryUser::OrdinaryUser()
    : m_wasRoot(geteuid() == 0)
{
    if (m_wasRoot) {
        m_dropped = setresgid(nobody, nobody, 0) == 0 && setresuid(nobody, nobody, 0) == 0;
    }
}

OrdinaryUser::~OrdinaryUser()
{
    if (m_dropped && (setresuid(0, 0, 0) != 0 || setresgid(0, 0, 0) != 0)) {
        qFatal("cannot become root again");
    }
}

ClosedFolder::ClosedFolder(const QByteArray &content)
{
    writeFile(filePath(), content);
    chmod(qUtf8Printable(filePath()), 0666);
    chmod(qUtf8Printable(m_dir.path()), 0555);
}

bool ClosedFolder::reopen() const
{
    return chmod(qUtf8Printable(m_dir.path()), 0777) == 0;
}
