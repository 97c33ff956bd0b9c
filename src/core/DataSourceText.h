// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

class Session;

//! The description of a data source with two blanks after it. An id that is not in tblDataSource
//! shows the warning "Error Data Flag: <id> could not be found in the database." and gives "unknown".
QString GetDataFlagText(Session &s, qint32 id);
//! The description of a data source by Lookup, so an unknown id gives "not found". Errors report in
//! the shared form as "GetDataSourceText" and give "".
QString GetDataSourceText(Session &s, qint32 id);
