#include "plugin/workersetup.h"

#include "plugin/configuration.h"
#include "worker/mhrworker.h"

void configureWorker(MHRWorker &worker, const Configuration &config)
{
    worker.setInterval(config.tickMilliseconds);
    worker.setSyncInterval(config.syncInterval);
    worker.setTestMode(config.testMode);
    worker.setImportFile(config.importFile);
    worker.setDeleteFileAfterImport(config.deleteFile);
    worker.setSyncCommand(config.syncCommand);
    worker.setSyncCommandRunCondition(config.syncCommandRun);
    worker.setDepartmentId(config.departmentId);
    worker.setMes(config.messages);
}
