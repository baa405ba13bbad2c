// SPDX-License-Identifier: MIT
#pragma once

/**
 * The threads that OlvGlobal::init() starts. A program that links this has a pthread_create() of
 * its own, which every library in it calls, and so learns when such a thread has ended.
 */
namespace JobThreads {

/** Calls OlvGlobal::init() and counts the thread that it starts. */
void startJob();
/** Calls OlvGlobal::init() where the system has no thread to give. */
void startJobWithoutThread();
/** Whether the threads of all jobs have ended; what they have written may be read then. */
bool haveEnded();

} // namespace JobThreads
