#pragma once

class MHRWorker;
struct Configuration;

/// Gives a worker what the configuration puts in force. For the time before the worker's thread
/// starts.
void configureWorker(MHRWorker &worker, const Configuration &config);
