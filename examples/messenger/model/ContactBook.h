#pragma once

#include "model/Contact.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace messenger {

/// The contacts in a JSON file that people may edit: an object whose "contacts" is a list of
/// objects.
///
/// \code
/// {"contacts": [{"id": "anna", "alias": "Anna", "status": "online", "picture": "anna.png"}]}
/// \endcode
///
/// An entry needs an id of its own and an alias; everything else may be missing. Entries that make
/// no sense are left out and named in problems().
class ContactBook
{
    Q_DECLARE_TR_FUNCTIONS(ContactBook)

public:
    /// Reads the book \a fileName, whose pictures lie in its folder or below.
    static ContactBook load(const QString &fileName);

    const QVector<Contact> &contacts() const { return m_contacts; }
    const QStringList &problems() const { return m_problems; }

private:
    void addEntry(const QJsonValue &entry, const QString &folder);

    QVector<Contact> m_contacts;
    QStringList m_problems;
};

} // namespace messenger
