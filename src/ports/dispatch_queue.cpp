#include "ports/dispatch_queue.h"

#include <utility>

namespace kelvo {

void background(BackgroundQueue& backgroundQueue, DispatchQueue& mainQueue, double delay, Work work,
                Work completion) {
    backgroundQueue.async(
        [&mainQueue, delay, work = std::move(work), completion = std::move(completion)] {
            if (work)
                work();
            if (completion)
                mainQueue.asyncAfter(delay, completion);
        });
}

} // namespace kelvo
