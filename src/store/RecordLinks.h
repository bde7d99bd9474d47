#pragma once
// The two passes that link one patient's comments and downloads to the readings. Days compare, not instants.

#include "store/CommentModel.h"
#include "store/DataTransferLogModel.h"
#include "store/ReadingModel.h"

#include <memory>
#include <vector>

namespace zel {

using ReadingList = std::vector<ReadingModel>;
using CommentList = std::vector<std::unique_ptr<CommentModel>>; ///< stable addresses: readings point at them
using DataLogList = std::vector<DataTransferLogModel>;

/// Gives each reading the comment that covers its day (a later comment wins), and marks for each comment the
/// first reading at or after its begin (bAtBegin, even if it lies after the end) and its last one (bAtEnd).
/// \p comments in order of their begin.
void setCommentInReading(const CommentList& comments, ReadingList& readings);

/// Marks the readings of the days on which a download took place (bYellowBackground).
void setDataLogInReading(const DataLogList& log, ReadingList& readings);

} // namespace zel
