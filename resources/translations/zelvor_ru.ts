<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Zelvor</name>
    <message>
        <source> (read)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (read-only)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (write)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> From: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Have: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> Reserv: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> To: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> is not found at specified path. Do you wish to delete useless line?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>'
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>' on WH: '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>'. Need: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Fixed Asset) </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Money) </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Product) </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A fixed asset is added by a document!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number is missing or too large: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A record cannot be the default and hidden at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A sum of the document is missing or too large.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A tax rate must not be below 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Account Types Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Accounts List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Account Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Basis For Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Counterparties Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Counterparty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Emplyee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Product Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Spending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Spending Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add New Warehouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Spending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Spending Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Addition of Fixed Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Counterparties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Documents From: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Documents Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Intangibles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Products on '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All Spendings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All currencies are up to date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amortized</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset Added</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset Purchase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset Sale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Asset Write-Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BALANCE:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance Due</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Balance Sheet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Base Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Basis For Delete List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>British Pound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can't check last report period!
 Can't confirm document!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can't confirm document with date from future!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can't confirm document.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can't confirm document: already have document with later date!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can't find project file!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can't get serial number for document.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Can't open project file!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Canadian Dollar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cash</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Catalogs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chinese Yuan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Constant</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Context</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Correction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counterparties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counterparties Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counterparties Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counterparty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counterparty Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Creating new Business</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Credit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currencies Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Currency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Customers / Suppliers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Czech Koruna</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Debit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default currency doesn't set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deferment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save the changes to the document?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Don't Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dynamics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Account</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Account Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Basis For Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Contragent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Contragent Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Expend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Expend Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Product</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Product Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit Warehouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employee Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employee Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Employeies List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable contragent balance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable employee balance.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enable product base cost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Euro</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to add doc sum to account balance.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to add products to WH.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to change contragent's balance.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to change product's base cost
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to check account balance.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to close month</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to delete products from WH.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to subtract doc sum from account balance.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to update contragent balance.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed to update employee balance.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field 'Name' is required!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Asset Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Assets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fixed Assets List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For unknown reasons we can not close month. Please try later.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From Warehouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Functions Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Have not enough money on account '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Intangible</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It can be opened for reading. Nothing can be changed then.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Japanese Yen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last month doesn't closed. Would you like to close it now?
IMPORTANT! After this procedure you can not confirm any document with date from last month!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last report period must be closed before we can proceed document with date from later period. But we can't close it now for unknown reason!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last report period must be closed before we can proceed document with date from later period. But we can't now close it for unknown reason!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Managers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money Deposit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money Document '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money Documents From: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money from Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Money to Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Need to close last month.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Net Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Account Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Function</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No counterparties yet. Add the first customer or supplier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No documents in this period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No manager</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No products yet. Add the first one, or import a list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No rows yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No sales in this period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No units yet. Add the first one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No warehouses yet. Add the first one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing to show yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Existing Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Logo File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Organization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pack</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pack Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Packs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Parameters for </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment Calendar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment from Counterparty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment from Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment of Spending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment to Counterparty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Payment to Employee</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Percent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select currency for account!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select default currency for project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please select default currency for project and confirm changes!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Polish Zloty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Price Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Document '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Documents From: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Product Journal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products On Warehouses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products in Warehouses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Products on Warehouses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Profit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project Management</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Property Document '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Purchase of Fixed Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Qty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reason</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reasons for Write-Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Received Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report by Selling For Period.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reports</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reserve</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Russian Ruble</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Salary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale of Fixed Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sale of Services</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales for a Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sales of a Period</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search in the list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Counterparties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Spendings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shipment</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Short</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shorthand</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sign</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorry this menu item not released yet!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spending</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spendings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spendings Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Spendings Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stock In</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swedish Krona</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Swiss Franc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TAX Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab #</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The GST rate must lie between 0 and 100 percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The VAT rate must lie between 0 and 100 percent.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The balance must be a number!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changes were not applied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changes were not saved!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The currency of a stored account cannot be changed!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The currency of a stored account stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The date is out of range.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The default currency of a project stays as it is.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The deferment must lie between 0 and %1 days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The deferment must lie between 0 and 36500 days.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is confirmed already.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document is not in the project any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document was confirmed or deleted in the meantime.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The document's rows were changed in the meantime. Please open it again.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fixed asset is not held any more!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fixed asset is sold or written off already.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last finished month is closed already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The longest deferment must lie between 0 and 36500 days.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The longest deferment must not be below 0.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The period and the current cost must be numbers, the period not below 0!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project has no settings.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project is in use by another program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The project is open for reading only. Nothing can be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rate of a currency must be above 0!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report period must be 1, 2 or 3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The salary must be a number!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no project at rest to copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such currency.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These inputs are missing: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not a number. Write 1234.50 or 1234,50.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To Warehouse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer Between Accounts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transfer Between Warehouses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turkish Lira</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>US Dollar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ukrainian Hryvnia</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Units Catalog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ups! Something goes wrong!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VAT</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VAT Amount</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VAT and GST cannot be used at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warehouses</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warehouses List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We have not '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>We have not enough '</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write-Off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write-Off of Fixed Asset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing to %1 failed (%2); the last operation was taken back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing to %1 failed (%2); the whole run was taken back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are trying to change contragent balance manually. It may cause of incorrectness main balance. Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are trying to change employee balance manually. It may cause of incorrectness main balance. Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are trying to change product base cost manually. Normally it calculated by program. It may cause of incorrectness main balance. Are you sure?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You are trying to confirm document with date from closed period!
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your changes will be lost if you don't save them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program has put it into write-ahead mode; opening it for writing brings it back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another program is writing to it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in use by %1 (process %2 on %3) since %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>in use: its lock %1 cannot be read; remove that file if nobody works with the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it could not be brought to the disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it holds "%1", which is no plain table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no project file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is the file of another program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its lock file cannot be written</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing can be written in its folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the examination broke off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file has a second name (a hard link), and writing under one of them can destroy it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is already a file of that name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>you may not read it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
