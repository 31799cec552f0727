<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Zelvor</name>
    <message>
        <source> (read)</source>
        <translation> (чтение)</translation>
    </message>
    <message>
        <source> (read-only)</source>
        <translation> (только чтение)</translation>
    </message>
    <message>
        <source> (write)</source>
        <translation> (правка)</translation>
    </message>
    <message>
        <source> From: </source>
        <translation> С: </translation>
    </message>
    <message>
        <source> Have: </source>
        <translation> Есть: </translation>
    </message>
    <message>
        <source> Reserv: </source>
        <translation> Резерв: </translation>
    </message>
    <message>
        <source> To:</source>
        <translation> По:</translation>
    </message>
    <message>
        <source> To: </source>
        <translation> По: </translation>
    </message>
    <message>
        <source> is not found at specified path. Do you wish to delete useless line?</source>
        <translation> не найден по указанному пути. Удалить ненужную строку?</translation>
    </message>
    <message>
        <source> on date: </source>
        <translation> на дату: </translation>
    </message>
    <message>
        <source>#</source>
        <translation>№</translation>
    </message>
    <message>
        <source>%1 has no settings: it is no project, or it is damaged.</source>
        <translation>%1 не содержит настроек: это не проект, или он повреждён.</translation>
    </message>
    <message>
        <source>'
</source>
        <translation>»
</translation>
    </message>
    <message>
        <source>' on WH: '</source>
        <translation>» на складе «</translation>
    </message>
    <message>
        <source>'. Need: </source>
        <translation>». Нужно: </translation>
    </message>
    <message>
        <source>(Fixed Asset) </source>
        <translation>(ОС) </translation>
    </message>
    <message>
        <source>(Money) </source>
        <translation>(Деньги) </translation>
    </message>
    <message>
        <source>(Product) </source>
        <translation>(Товары) </translation>
    </message>
    <message>
        <source>(before the start)</source>
        <translation>(раньше начала)</translation>
    </message>
    <message>
        <source>(not included)</source>
        <translation>(не включая)</translation>
    </message>
    <message>
        <source>, e-mail: </source>
        <translation>, e-mail: </translation>
    </message>
    <message>
        <source>A deleted document cannot be brought back.</source>
        <translation>Удалённый документ вернуть нельзя.</translation>
    </message>
    <message>
        <source>A fixed asset is added by a document!</source>
        <translation>Основное средство добавляют документом!</translation>
    </message>
    <message>
        <source>A number is missing or too large: </source>
        <translation>Число не указано или слишком велико: </translation>
    </message>
    <message>
        <source>A record cannot be the default and hidden at once.</source>
        <translation>Запись не может быть сразу и основной, и скрытой.</translation>
    </message>
    <message>
        <source>A service: it is sold, but never lies in a warehouse.</source>
        <translation>Услуга: её продают, но на складе она не лежит.</translation>
    </message>
    <message>
        <source>A sum of the document is missing or too large.
</source>
        <translation>Сумма документа не указана или слишком велика.
</translation>
    </message>
    <message>
        <source>A tax rate must not be below 0.</source>
        <translation>Ставка налога не может быть меньше 0.</translation>
    </message>
    <message>
        <source>About Zelvor</source>
        <translation>О программе</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>Счёт</translation>
    </message>
    <message>
        <source>Account From</source>
        <translation>Со счёта</translation>
    </message>
    <message>
        <source>Account Name:</source>
        <translation>Получатель:</translation>
    </message>
    <message>
        <source>Account No.:</source>
        <translation>Счёт №:</translation>
    </message>
    <message>
        <source>Account Report</source>
        <translation>Отчёт по счёту</translation>
    </message>
    <message>
        <source>Account To</source>
        <translation>На счёт</translation>
    </message>
    <message>
        <source>Account Types</source>
        <translation>Виды счетов</translation>
    </message>
    <message>
        <source>Account Types Catalog</source>
        <translation>Справочник видов счетов</translation>
    </message>
    <message>
        <source>Account holder</source>
        <translation>Владелец счёта</translation>
    </message>
    <message>
        <source>Account number</source>
        <translation>Номер счёта</translation>
    </message>
    <message>
        <source>Account: </source>
        <translation>Счёт: </translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Счета</translation>
    </message>
    <message>
        <source>Accounts List</source>
        <translation>Список счетов</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Add (Ctrl+N or Insert)</source>
        <translation>Добавить (Ctrl+N или Insert)</translation>
    </message>
    <message>
        <source>Add Account Type</source>
        <translation>Добавить вид счёта</translation>
    </message>
    <message>
        <source>Add Function</source>
        <translation>Добавить должность</translation>
    </message>
    <message>
        <source>Add New Account</source>
        <translation>Новый счёт</translation>
    </message>
    <message>
        <source>Add New Basis For Delete</source>
        <translation>Новая причина списания</translation>
    </message>
    <message>
        <source>Add New Counterparties Group</source>
        <translation>Новая группа контрагентов</translation>
    </message>
    <message>
        <source>Add New Counterparty</source>
        <translation>Новый контрагент</translation>
    </message>
    <message>
        <source>Add New Emplyee</source>
        <translation>Новый сотрудник</translation>
    </message>
    <message>
        <source>Add New Product</source>
        <translation>Новый товар</translation>
    </message>
    <message>
        <source>Add New Product Group</source>
        <translation>Новая группа товаров</translation>
    </message>
    <message>
        <source>Add New Spending</source>
        <translation>Новый расход</translation>
    </message>
    <message>
        <source>Add New Spending Type</source>
        <translation>Новый вид расходов</translation>
    </message>
    <message>
        <source>Add New Unit</source>
        <translation>Новая единица измерения</translation>
    </message>
    <message>
        <source>Add New Warehouse</source>
        <translation>Новый склад</translation>
    </message>
    <message>
        <source>Add Spending</source>
        <translation>Добавить расход</translation>
    </message>
    <message>
        <source>Add Spending Type</source>
        <translation>Добавить вид расходов</translation>
    </message>
    <message>
        <source>Add a Function</source>
        <translation>Добавить должность</translation>
    </message>
    <message>
        <source>Add a Group</source>
        <translation>Добавить группу</translation>
    </message>
    <message>
        <source>Add a Pack</source>
        <translation>Добавить упаковку</translation>
    </message>
    <message>
        <source>Add a Unit</source>
        <translation>Добавить единицу</translation>
    </message>
    <message>
        <source>Add a product by its name</source>
        <translation>Добавить товар по названию</translation>
    </message>
    <message>
        <source>Add an Employee</source>
        <translation>Добавить сотрудника</translation>
    </message>
    <message>
        <source>Add to the catalog</source>
        <translation>Добавить в справочник</translation>
    </message>
    <message>
        <source>Addition of Fixed Asset</source>
        <translation>Оприходование ОС</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Адрес</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Адрес:</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Все</translation>
    </message>
    <message>
        <source>All Counterparties</source>
        <translation>Все контрагенты</translation>
    </message>
    <message>
        <source>All Documents</source>
        <translation>Все документы</translation>
    </message>
    <message>
        <source>All Documents From: </source>
        <translation>Все документы с: </translation>
    </message>
    <message>
        <source>All Documents Journal</source>
        <translation>Журнал всех документов</translation>
    </message>
    <message>
        <source>All Intangibles</source>
        <translation>Все услуги</translation>
    </message>
    <message>
        <source>All Products</source>
        <translation>Все товары</translation>
    </message>
    <message>
        <source>All Products on '</source>
        <translation>Все товары на складе '</translation>
    </message>
    <message>
        <source>All Spendings</source>
        <translation>Все расходы</translation>
    </message>
    <message>
        <source>All again</source>
        <translation>Снова все</translation>
    </message>
    <message>
        <source>All currencies are up to date</source>
        <translation>Курсы всех валют актуальны</translation>
    </message>
    <message>
        <source>All currencies updated at: </source>
        <translation>Курсы всех валют обновлены: </translation>
    </message>
    <message>
        <source>Amortized</source>
        <translation>Амортизация</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Кол-во</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Оформление</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Применить</translation>
    </message>
    <message>
        <source>As the System</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Asset Added</source>
        <translation>Оприходование ОС</translation>
    </message>
    <message>
        <source>Asset Purchase</source>
        <translation>Покупка ОС</translation>
    </message>
    <message>
        <source>Asset Sale</source>
        <translation>Продажа ОС</translation>
    </message>
    <message>
        <source>Asset Write-Off</source>
        <translation>Списание ОС</translation>
    </message>
    <message>
        <source>BALANCE:</source>
        <translation>БАЛАНС:</translation>
    </message>
    <message>
        <source>BILL TO:</source>
        <translation>КОМУ:</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>Balance After</source>
        <translation>Остаток после</translation>
    </message>
    <message>
        <source>Balance Before</source>
        <translation>Остаток до</translation>
    </message>
    <message>
        <source>Balance Due</source>
        <translation>К оплате</translation>
    </message>
    <message>
        <source>Balance Sheet</source>
        <translation>Баланс</translation>
    </message>
    <message>
        <source>Balance on</source>
        <translation>Баланс на</translation>
    </message>
    <message>
        <source>Balance on date: </source>
        <translation>Баланс на дату: </translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Банк</translation>
    </message>
    <message>
        <source>Bank address</source>
        <translation>Адрес банка</translation>
    </message>
    <message>
        <source>Bank name</source>
        <translation>Название банка</translation>
    </message>
    <message>
        <source>Bank:</source>
        <translation>Банк:</translation>
    </message>
    <message>
        <source>Base Cost</source>
        <translation>Себестоимость</translation>
    </message>
    <message>
        <source>Base Sum</source>
        <translation>По себестоимости</translation>
    </message>
    <message>
        <source>Base cost</source>
        <translation>Себестоимость</translation>
    </message>
    <message>
        <source>Basis For Delete List</source>
        <translation>Список причин списания</translation>
    </message>
    <message>
        <source>Belongs to</source>
        <translation>Входит в</translation>
    </message>
    <message>
        <source>Book-keeping and trade accounting for small businesses</source>
        <translation>Бухгалтерский и торговый учёт для малого бизнеса</translation>
    </message>
    <message>
        <source>British Pound</source>
        <translation>Британский фунт</translation>
    </message>
    <message>
        <source>Busy</source>
        <translation>Подождите</translation>
    </message>
    <message>
        <source>By</source>
        <translation>По</translation>
    </message>
    <message>
        <source>Can't check last report period!
 Can't confirm document!
</source>
        <translation>Не удалось проверить последний отчётный период!
 Документ не проведён!
</translation>
    </message>
    <message>
        <source>Can't confirm document with date from future!
</source>
        <translation>Нельзя провести документ с датой из будущего!
</translation>
    </message>
    <message>
        <source>Can't confirm document.
</source>
        <translation>Документ не проведён.
</translation>
    </message>
    <message>
        <source>Can't confirm document: already have document with later date!
</source>
        <translation>Документ не проведён: уже есть документ с более поздней датой!
</translation>
    </message>
    <message>
        <source>Can't find project file!</source>
        <translation>Файл проекта не найден!</translation>
    </message>
    <message>
        <source>Can't get serial number for document.
</source>
        <translation>Не удалось получить номер документа.
</translation>
    </message>
    <message>
        <source>Can't open project file!</source>
        <translation>Не удалось открыть файл проекта!</translation>
    </message>
    <message>
        <source>Can't print more than 2 Warehouses at one time!</source>
        <translation>За один раз можно напечатать не больше двух складов!</translation>
    </message>
    <message>
        <source>Canadian Dollar</source>
        <translation>Канадский доллар</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Cannot open %1: %2</source>
        <translation>Не удалось открыть %1: %2</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Деньги</translation>
    </message>
    <message>
        <source>Catalogs</source>
        <translation>Справочники</translation>
    </message>
    <message>
        <source>Changed: press "Refresh" to see it</source>
        <translation>Изменено: нажмите «Обновить»</translation>
    </message>
    <message>
        <source>Chinese Yuan</source>
        <translation>Китайский юань</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Выбрать</translation>
    </message>
    <message>
        <source>Choose a counterparty</source>
        <translation>Выбрать контрагента</translation>
    </message>
    <message>
        <source>Choose the counterparty</source>
        <translation>Выбрать контрагента</translation>
    </message>
    <message>
        <source>Choose the logo file</source>
        <translation>Выбрать файл логотипа</translation>
    </message>
    <message>
        <source>Choose the period and press "Refresh".</source>
        <translation>Выберите период и нажмите «Обновить».</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>Выбрать…</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Город</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Close Project</source>
        <translation>Закрыть проект</translation>
    </message>
    <message>
        <source>Close Tab</source>
        <translation>Закрыть вкладку</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Код</translation>
    </message>
    <message>
        <source>Collapse All</source>
        <translation>Свернуть всё</translation>
    </message>
    <message>
        <source>Collapse Left Pane</source>
        <translation>Свернуть левую панель</translation>
    </message>
    <message>
        <source>Collapse or show the menu (F9)</source>
        <translation>Свернуть или показать меню (F9)</translation>
    </message>
    <message>
        <source>Collapse the menu</source>
        <translation>Свернуть меню</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Комментарий</translation>
    </message>
    <message>
        <source>Company</source>
        <translation>Компания</translation>
    </message>
    <message>
        <source>Company address</source>
        <translation>Адрес компании</translation>
    </message>
    <message>
        <source>Company city</source>
        <translation>Город компании</translation>
    </message>
    <message>
        <source>Company e-mail</source>
        <translation>Эл. почта компании</translation>
    </message>
    <message>
        <source>Company name</source>
        <translation>Название компании</translation>
    </message>
    <message>
        <source>Company phone</source>
        <translation>Телефон компании</translation>
    </message>
    <message>
        <source>Company web site</source>
        <translation>Сайт компании</translation>
    </message>
    <message>
        <source>Conf.</source>
        <translation>Пров.</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Провести</translation>
    </message>
    <message>
        <source>Confirm the document (Ctrl+Return)</source>
        <translation>Провести документ (Ctrl+Return)</translation>
    </message>
    <message>
        <source>Confirmed</source>
        <translation>Проведён</translation>
    </message>
    <message>
        <source>Constant</source>
        <translation>Постоянный</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Контакт</translation>
    </message>
    <message>
        <source>Contact Person</source>
        <translation>Контактное лицо</translation>
    </message>
    <message>
        <source>Context</source>
        <translation>Действия</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Копировать</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>Корректировка</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Стоимость</translation>
    </message>
    <message>
        <source>Counterparties</source>
        <translation>Контрагенты</translation>
    </message>
    <message>
        <source>Counterparties Catalog</source>
        <translation>Справочник контрагентов</translation>
    </message>
    <message>
        <source>Counterparties Report</source>
        <translation>Отчёт по контрагентам</translation>
    </message>
    <message>
        <source>Counterparties: </source>
        <translation>Контрагенты: </translation>
    </message>
    <message>
        <source>Counterparty</source>
        <translation>Контрагент</translation>
    </message>
    <message>
        <source>Counterparty Address</source>
        <translation>Адрес контрагента</translation>
    </message>
    <message>
        <source>Counterparty Balance</source>
        <translation>Баланс контрагента</translation>
    </message>
    <message>
        <source>Counterparty City</source>
        <translation>Город контрагента</translation>
    </message>
    <message>
        <source>Counterparty Comment</source>
        <translation>Комментарий к контрагенту</translation>
    </message>
    <message>
        <source>Counterparty Discount</source>
        <translation>Скидка контрагента</translation>
    </message>
    <message>
        <source>Counterparty E-mail</source>
        <translation>Эл. почта контрагента</translation>
    </message>
    <message>
        <source>Counterparty Group</source>
        <translation>Группа контрагентов</translation>
    </message>
    <message>
        <source>Counterparty Manager</source>
        <translation>Менеджер контрагента</translation>
    </message>
    <message>
        <source>Counterparty Name</source>
        <translation>Наименование контрагента</translation>
    </message>
    <message>
        <source>Counterparty Phone</source>
        <translation>Телефон контрагента</translation>
    </message>
    <message>
        <source>Counterparty Report</source>
        <translation>Отчёт по контрагенту</translation>
    </message>
    <message>
        <source>Counterparty VAT Number</source>
        <translation>ИНН контрагента</translation>
    </message>
    <message>
        <source>Counterparty: </source>
        <translation>Контрагент: </translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Creating new Business</source>
        <translation>Новый проект</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>Кредит</translation>
    </message>
    <message>
        <source>Credit (+)</source>
        <translation>Кредит (+)</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Валюты</translation>
    </message>
    <message>
        <source>Currencies Catalog</source>
        <translation>Справочник валют</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Валюта</translation>
    </message>
    <message>
        <source>Current Cost</source>
        <translation>Остаточная стоимость</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Покупатели</translation>
    </message>
    <message>
        <source>Customers / Suppliers</source>
        <translation>Покупатели и поставщики</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Вырезать</translation>
    </message>
    <message>
        <source>Czech Koruna</source>
        <translation>Чешская крона</translation>
    </message>
    <message>
        <source>DATE:</source>
        <translation>ДАТА:</translation>
    </message>
    <message>
        <source>DUE BY:</source>
        <translation>СРОК:</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмное</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Days of Deferred Payment</source>
        <translation>Дней отсрочки</translation>
    </message>
    <message>
        <source>Debet</source>
        <translation>Дебет</translation>
    </message>
    <message>
        <source>Debit</source>
        <translation>Дебет</translation>
    </message>
    <message>
        <source>Debit (-)</source>
        <translation>Дебет (-)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Основной</translation>
    </message>
    <message>
        <source>Default currency</source>
        <translation>Основная валюта</translation>
    </message>
    <message>
        <source>Default currency doesn't set</source>
        <translation>Основная валюта не выбрана</translation>
    </message>
    <message>
        <source>Deferment</source>
        <translation>Отсрочка</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Удалить</translation>
    </message>
    <message>
        <source>Delete Document</source>
        <translation>Удалить документ</translation>
    </message>
    <message>
        <source>Delete Row</source>
        <translation>Удалить строку</translation>
    </message>
    <message>
        <source>Delete the document</source>
        <translation>Удалить документ</translation>
    </message>
    <message>
        <source>Delete the document?</source>
        <translation>Удалить документ?</translation>
    </message>
    <message>
        <source>Delete the selected row (Delete)</source>
        <translation>Удалить выбранную строку (Delete)</translation>
    </message>
    <message>
        <source>Delete this document?</source>
        <translation>Удалить этот документ?</translation>
    </message>
    <message>
        <source>Depreciating</source>
        <translation>Амортизация</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Описание</translation>
    </message>
    <message>
        <source>Direct Bank Transfer</source>
        <translation>Банковский перевод</translation>
    </message>
    <message>
        <source>Discount</source>
        <translation>Скидка</translation>
    </message>
    <message>
        <source>Discount, %</source>
        <translation>Скидка, %</translation>
    </message>
    <message>
        <source>Discount, percent</source>
        <translation>Скидка, процентов</translation>
    </message>
    <message>
        <source>Discount, percent, by a slider</source>
        <translation>Скидка, процентов, ползунком</translation>
    </message>
    <message>
        <source>Do you want to save the changes to the document?</source>
        <translation>Сохранить изменения в документе?</translation>
    </message>
    <message>
        <source>Doc Date</source>
        <translation>Дата док.</translation>
    </message>
    <message>
        <source>Doc Sum</source>
        <translation>Сумма док.</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Документ</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Документы</translation>
    </message>
    <message>
        <source>Documents Journal</source>
        <translation>Журнал документов</translation>
    </message>
    <message>
        <source>Documents and reports</source>
        <translation>Документы и отчёты</translation>
    </message>
    <message>
        <source>Don't Save</source>
        <translation>Не сохранять</translation>
    </message>
    <message>
        <source>Dynamics</source>
        <translation>Динамика</translation>
    </message>
    <message>
        <source>E-mail</source>
        <translation>Эл. почта</translation>
    </message>
    <message>
        <source>END PERIOD:</source>
        <translation>КОНЕЦ ПЕРИОДА:</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Изменить</translation>
    </message>
    <message>
        <source>Edit</source>
        <comment>menu</comment>
        <translation>Правка</translation>
    </message>
    <message>
        <source>Edit Account</source>
        <translation>Правка счёта</translation>
    </message>
    <message>
        <source>Edit Account Type</source>
        <translation>Правка вида счёта</translation>
    </message>
    <message>
        <source>Edit Basis For Delete</source>
        <translation>Правка причины списания</translation>
    </message>
    <message>
        <source>Edit Contragent</source>
        <translation>Правка контрагента</translation>
    </message>
    <message>
        <source>Edit Contragent Group</source>
        <translation>Правка группы контрагентов</translation>
    </message>
    <message>
        <source>Edit Employee</source>
        <translation>Правка сотрудника</translation>
    </message>
    <message>
        <source>Edit Expend</source>
        <translation>Правка расхода</translation>
    </message>
    <message>
        <source>Edit Expend Type</source>
        <translation>Правка вида расходов</translation>
    </message>
    <message>
        <source>Edit Function</source>
        <translation>Правка должности</translation>
    </message>
    <message>
        <source>Edit Product</source>
        <translation>Правка товара</translation>
    </message>
    <message>
        <source>Edit Product Group</source>
        <translation>Правка группы товаров</translation>
    </message>
    <message>
        <source>Edit Row</source>
        <translation>Изменить строку</translation>
    </message>
    <message>
        <source>Edit Unit</source>
        <translation>Правка единицы измерения</translation>
    </message>
    <message>
        <source>Edit Warehouse</source>
        <translation>Правка склада</translation>
    </message>
    <message>
        <source>Edit the row (F2)</source>
        <translation>Изменить строку (F2)</translation>
    </message>
    <message>
        <source>Employee</source>
        <translation>Сотрудник</translation>
    </message>
    <message>
        <source>Employee Balance</source>
        <translation>Баланс сотрудника</translation>
    </message>
    <message>
        <source>Employee Function</source>
        <translation>Должность сотрудника</translation>
    </message>
    <message>
        <source>Employee Functions</source>
        <translation>Должности</translation>
    </message>
    <message>
        <source>Employee Name</source>
        <translation>Имя сотрудника</translation>
    </message>
    <message>
        <source>Employee Report</source>
        <translation>Отчёт по сотруднику</translation>
    </message>
    <message>
        <source>Employee: </source>
        <translation>Сотрудник: </translation>
    </message>
    <message>
        <source>Employees</source>
        <translation>Сотрудники</translation>
    </message>
    <message>
        <source>Employeies List</source>
        <translation>Список сотрудников</translation>
    </message>
    <message>
        <source>Enable contragent balance</source>
        <translation>Правка баланса контрагента</translation>
    </message>
    <message>
        <source>Enable employee balance.</source>
        <translation>Правка баланса сотрудника.</translation>
    </message>
    <message>
        <source>Enable product base cost</source>
        <translation>Правка себестоимости товара</translation>
    </message>
    <message>
        <source>End Balance</source>
        <translation>Остаток на конец</translation>
    </message>
    <message>
        <source>Enter takes the product, Escape empties the line.</source>
        <translation>Enter берёт товар, Escape очищает строку.</translation>
    </message>
    <message>
        <source>Euro</source>
        <translation>Евро</translation>
    </message>
    <message>
        <source>Everything else is in the menu at the left, or a Ctrl+K away.</source>
        <translation>Всё остальное — в меню слева или по Ctrl+K.</translation>
    </message>
    <message>
        <source>Expand All</source>
        <translation>Развернуть всё</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Экспортировать</translation>
    </message>
    <message>
        <source>Export table to .xls</source>
        <translation>Экспорт таблицы в .xls</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>Экспорт…</translation>
    </message>
    <message>
        <source>Failed to add doc sum to account balance.
</source>
        <translation>Не удалось прибавить сумму документа к остатку счёта.
</translation>
    </message>
    <message>
        <source>Failed to add products to WH.
</source>
        <translation>Не удалось оприходовать товары на склад.
</translation>
    </message>
    <message>
        <source>Failed to change contragent's balance.
</source>
        <translation>Не удалось изменить баланс контрагента.
</translation>
    </message>
    <message>
        <source>Failed to change product's base cost
</source>
        <translation>Не удалось изменить себестоимость товара
</translation>
    </message>
    <message>
        <source>Failed to check account balance.
</source>
        <translation>Не удалось проверить остаток счёта.
</translation>
    </message>
    <message>
        <source>Failed to close month</source>
        <translation>Не удалось закрыть месяц</translation>
    </message>
    <message>
        <source>Failed to delete products from WH.
</source>
        <translation>Не удалось списать товары со склада.
</translation>
    </message>
    <message>
        <source>Failed to subtract doc sum from account balance.
</source>
        <translation>Не удалось вычесть сумму документа из остатка счёта.
</translation>
    </message>
    <message>
        <source>Failed to update contragent balance.
</source>
        <translation>Не удалось обновить баланс контрагента.
</translation>
    </message>
    <message>
        <source>Failed to update employee balance.
</source>
        <translation>Не удалось обновить баланс сотрудника.
</translation>
    </message>
    <message>
        <source>Field 'Name' is required!</source>
        <translation>Заполните поле «Наименование»!</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Файл</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Найти</translation>
    </message>
    <message>
        <source>Find Anything</source>
        <translation>Найти всё</translation>
    </message>
    <message>
        <source>Find anything</source>
        <translation>Найти всё</translation>
    </message>
    <message>
        <source>Find anything   Ctrl+K</source>
        <translation>Найти всё   Ctrl+K</translation>
    </message>
    <message>
        <source>Finish Saldo</source>
        <translation>Сальдо кон.</translation>
    </message>
    <message>
        <source>Fixed Asset</source>
        <translation>Основное средство</translation>
    </message>
    <message>
        <source>Fixed Asset Journal</source>
        <translation>Журнал основных средств</translation>
    </message>
    <message>
        <source>Fixed Assets</source>
        <translation>Основные средства</translation>
    </message>
    <message>
        <source>Fixed Assets List</source>
        <translation>Список основных средств</translation>
    </message>
    <message>
        <source>Fixed Assets Total: </source>
        <translation>Основные средства, всего: </translation>
    </message>
    <message>
        <source>Flag</source>
        <translation>Флаг</translation>
    </message>
    <message>
        <source>For unknown reasons we can not close month. Please try later.</source>
        <translation>По неизвестной причине месяц закрыть не удалось. Попробуйте позже.</translation>
    </message>
    <message>
        <source>Forget</source>
        <translation>Забыть</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Найдено</translation>
    </message>
    <message>
        <source>From</source>
        <translation>С</translation>
    </message>
    <message>
        <source>From</source>
        <comment>warehouse</comment>
        <translation>Со склада</translation>
    </message>
    <message>
        <source>From Warehouse</source>
        <translation>Со склада</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Во весь экран</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>Должность</translation>
    </message>
    <message>
        <source>Function Name</source>
        <translation>Название должности</translation>
    </message>
    <message>
        <source>Function Salary</source>
        <translation>Оклад по должности</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Должности</translation>
    </message>
    <message>
        <source>Functions Catalog</source>
        <translation>Справочник должностей</translation>
    </message>
    <message>
        <source>GST rate, %</source>
        <translation>Ставка GST, %</translation>
    </message>
    <message>
        <source>GST, %</source>
        <translation>GST, %</translation>
    </message>
    <message>
        <source>Go to Tab</source>
        <translation>Перейти на вкладку</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Группа</translation>
    </message>
    <message>
        <source>Group Description</source>
        <translation>Описание группы</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Наименование группы</translation>
    </message>
    <message>
        <source>Have not enough money on account '</source>
        <translation>Не хватает денег на счёте «</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Справка</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Скрыт</translation>
    </message>
    <message>
        <source>Hides the products; their customers keep the sums</source>
        <translation>Скрыть товары; суммы остаются у покупателей</translation>
    </message>
    <message>
        <source>Hides the products; their groups keep the sums</source>
        <translation>Скрыть товары; суммы остаются у групп</translation>
    </message>
    <message>
        <source>IBAN</source>
        <translation>IBAN</translation>
    </message>
    <message>
        <source>IBAN:</source>
        <translation>IBAN:</translation>
    </message>
    <message>
        <source>INVOICE</source>
        <translation>СЧЁТ</translation>
    </message>
    <message>
        <source>INVOICE #</source>
        <translation>СЧЁТ №</translation>
    </message>
    <message>
        <source>If you have any questions concerning this invoice, phone: </source>
        <translation>Вопросы по счёту: телефон </translation>
    </message>
    <message>
        <source>Income</source>
        <translation>Доходы</translation>
    </message>
    <message>
        <source>Intangible</source>
        <translation>Услуга</translation>
    </message>
    <message>
        <source>It can be opened for reading. Nothing can be changed then.</source>
        <translation>Его можно открыть для чтения, но изменить тогда ничего нельзя.</translation>
    </message>
    <message>
        <source>Japanese Yen</source>
        <translation>Японская иена</translation>
    </message>
    <message>
        <source>Journals</source>
        <translation>Журналы</translation>
    </message>
    <message>
        <source>Known projects</source>
        <translation>Известные проекты</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Язык</translation>
    </message>
    <message>
        <source>Language of the System</source>
        <translation>Язык системы</translation>
    </message>
    <message>
        <source>Last closed month</source>
        <translation>Последний закрытый месяц</translation>
    </message>
    <message>
        <source>Last month doesn't closed. Would you like to close it now?
IMPORTANT! After this procedure you can not confirm any document with date from last month!</source>
        <translation>Прошлый месяц не закрыт. Закрыть его сейчас?
ВАЖНО! После этого нельзя будет провести ни один документ с датой прошлого месяца!</translation>
    </message>
    <message>
        <source>Last report period must be closed before we can proceed document with date from later period. But we can't close it now for unknown reason!
</source>
        <translation>Прежде чем проводить документ с датой следующего периода, нужно закрыть прошлый отчётный период. Но по неизвестной причине закрыть его сейчас не удалось!
</translation>
    </message>
    <message>
        <source>Last report period must be closed before we can proceed document with date from later period. But we can't now close it for unknown reason!
</source>
        <translation>Прежде чем проводить документ с датой следующего периода, нужно закрыть прошлый отчётный период. Но по неизвестной причине закрыть его сейчас не удалось!
</translation>
    </message>
    <message>
        <source>Leaves this project for the list of all projects.</source>
        <translation>Закрывает этот проект и показывает список всех проектов.</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлое</translation>
    </message>
    <message>
        <source>List of Units</source>
        <translation>Список единиц измерения</translation>
    </message>
    <message>
        <source>Lock of the Balance</source>
        <translation>Замок баланса</translation>
    </message>
    <message>
        <source>Lock of the Base Cost</source>
        <translation>Замок себестоимости</translation>
    </message>
    <message>
        <source>Lock of the Employee Balance</source>
        <translation>Замок баланса сотрудника</translation>
    </message>
    <message>
        <source>Locked: documents keep this figure. Press to change it by hand.</source>
        <translation>Закрыто: число ведут документы. Нажмите, чтобы изменить вручную.</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Логотип</translation>
    </message>
    <message>
        <source>Longest deferment, days</source>
        <translation>Наибольшая отсрочка, дней</translation>
    </message>
    <message>
        <source>Make all checks payable to </source>
        <translation>Получатель платежа: </translation>
    </message>
    <message>
        <source>Manager</source>
        <translation>Менеджер</translation>
    </message>
    <message>
        <source>Managers</source>
        <translation>Менеджеры</translation>
    </message>
    <message>
        <source>Managers without customers</source>
        <translation>Менеджеры без покупателей</translation>
    </message>
    <message>
        <source>Margin</source>
        <translation>Маржа</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Меню</translation>
    </message>
    <message>
        <source>Missing: </source>
        <translation>Нет файла: </translation>
    </message>
    <message>
        <source>Money</source>
        <translation>Деньги</translation>
    </message>
    <message>
        <source>Money Deposit</source>
        <translation>Внесение денег</translation>
    </message>
    <message>
        <source>Money Document '</source>
        <translation>Документ '</translation>
    </message>
    <message>
        <source>Money Documents From: </source>
        <translation>Денежные документы с: </translation>
    </message>
    <message>
        <source>Money Journal</source>
        <translation>Денежный журнал</translation>
    </message>
    <message>
        <source>Money from Employee</source>
        <translation>Получено от сотрудника</translation>
    </message>
    <message>
        <source>Money to Employee</source>
        <translation>Выдано сотруднику</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Месяц</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Ещё</translation>
    </message>
    <message>
        <source>More commands</source>
        <translation>Другие команды</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Наименование</translation>
    </message>
    <message>
        <source>Name</source>
        <comment>person</comment>
        <translation>Имя</translation>
    </message>
    <message>
        <source>Need to close last month.</source>
        <translation>Нужно закрыть прошлый месяц.</translation>
    </message>
    <message>
        <source>Net Total</source>
        <translation>Без налога</translation>
    </message>
    <message>
        <source>New Account Type</source>
        <translation>Новый вид счёта</translation>
    </message>
    <message>
        <source>New Function</source>
        <translation>Новая должность</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Новая запись</translation>
    </message>
    <message>
        <source>New Project…</source>
        <translation>Новый проект…</translation>
    </message>
    <message>
        <source>New Purchase</source>
        <translation>Новая покупка</translation>
    </message>
    <message>
        <source>New Sale</source>
        <translation>Новая продажа</translation>
    </message>
    <message>
        <source>New version of application is available. Would you like to download it?</source>
        <translation>Вышла новая версия программы. Загрузить её?</translation>
    </message>
    <message>
        <source>New…</source>
        <translation>Создать…</translation>
    </message>
    <message>
        <source>Next Tab</source>
        <translation>Следующая вкладка</translation>
    </message>
    <message>
        <source>No counterparties yet. Add the first customer or supplier.</source>
        <translation>Контрагентов пока нет. Добавьте первого покупателя или поставщика.</translation>
    </message>
    <message>
        <source>No documents in this period. Choose other dates, or press "This period".</source>
        <translation>За этот период документов нет. Выберите другие даты или нажмите «Текущий период».</translation>
    </message>
    <message>
        <source>No manager</source>
        <translation>Без менеджера</translation>
    </message>
    <message>
        <source>No product of that name can be taken here.</source>
        <translation>Товара с таким названием здесь нет.</translation>
    </message>
    <message>
        <source>No products yet. Add the first one, or import a list.</source>
        <translation>Товаров пока нет. Добавьте первый или загрузите список.</translation>
    </message>
    <message>
        <source>No projects yet.

Press New… to start the books of your business,
or Open Existing… for a project file that you have.</source>
        <translation>Проектов пока нет.

Нажмите «Создать…», чтобы начать учёт,
или «Открыть файл…», если файл проекта уже есть.</translation>
    </message>
    <message>
        <source>No rows yet. Type a product, or drag one from the list on the right.</source>
        <translation>Строк пока нет. Введите товар или перетащите его из списка справа.</translation>
    </message>
    <message>
        <source>No units yet. Add the first one.</source>
        <translation>Единиц измерения пока нет. Добавьте первую.</translation>
    </message>
    <message>
        <source>No warehouses yet. Add the first one.</source>
        <translation>Складов пока нет. Добавьте первый.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Нет</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Пока нет</translation>
    </message>
    <message>
        <source>Nothing here holds '%1'. Escape shows everything again.</source>
        <translation>Здесь нет ничего со словами «%1». Escape снова покажет всё.</translation>
    </message>
    <message>
        <source>Nothing of that name.</source>
        <translation>Ничего с таким названием.</translation>
    </message>
    <message>
        <source>Nothing ticked counts as all.</source>
        <translation>Если ничего не отмечено, берутся все.</translation>
    </message>
    <message>
        <source>Nothing to show yet.</source>
        <translation>Показывать пока нечего.</translation>
    </message>
    <message>
        <source>Nothing was sold in this period.</source>
        <translation>За этот период ничего не продано.</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Номер</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Only customers</source>
        <translation>Только покупатели</translation>
    </message>
    <message>
        <source>Only groups</source>
        <translation>Только группы</translation>
    </message>
    <message>
        <source>Only product groups</source>
        <translation>Только группы товаров</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>Открыть документ</translation>
    </message>
    <message>
        <source>Open Existing Project</source>
        <translation>Открыть проект</translation>
    </message>
    <message>
        <source>Open Existing…</source>
        <translation>Открыть файл…</translation>
    </message>
    <message>
        <source>Open Logo File</source>
        <translation>Выбрать файл логотипа</translation>
    </message>
    <message>
        <source>Open Project…</source>
        <translation>Открыть проект…</translation>
    </message>
    <message>
        <source>Open Read-Only</source>
        <translation>Открыть для чтения</translation>
    </message>
    <message>
        <source>Open page</source>
        <translation>Открытая страница</translation>
    </message>
    <message>
        <source>Open pages</source>
        <translation>Открытые страницы</translation>
    </message>
    <message>
        <source>Open: the figure can be changed by hand.</source>
        <translation>Открыто: число можно изменить вручную.</translation>
    </message>
    <message>
        <source>Organization</source>
        <translation>Организация</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>Упаковка</translation>
    </message>
    <message>
        <source>Pack Amount</source>
        <translation>В упаковке</translation>
    </message>
    <message>
        <source>Packs</source>
        <translation>Упаковок</translation>
    </message>
    <message>
        <source>Parameters for </source>
        <translation>Параметры проекта </translation>
    </message>
    <message>
        <source>Parent Counterparty</source>
        <translation>Входит в контрагента</translation>
    </message>
    <message>
        <source>Parent Group</source>
        <translation>Входит в группу</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Вставить</translation>
    </message>
    <message>
        <source>Pay To</source>
        <translation>Оплатить до</translation>
    </message>
    <message>
        <source>Pay Within, Days</source>
        <translation>Отсрочка, дней</translation>
    </message>
    <message>
        <source>Pay within</source>
        <translation>Отсрочка</translation>
    </message>
    <message>
        <source>Pay within, days</source>
        <translation>Отсрочка, дней</translation>
    </message>
    <message>
        <source>Pay within, days, by a slider</source>
        <translation>Отсрочка, дней, ползунком</translation>
    </message>
    <message>
        <source>Payment Calendar</source>
        <translation>Платёжный календарь</translation>
    </message>
    <message>
        <source>Payment Calendar on date: </source>
        <translation>Платёжный календарь на дату: </translation>
    </message>
    <message>
        <source>Payment from Counterparty</source>
        <translation>Оплата от контрагента</translation>
    </message>
    <message>
        <source>Payment from Employee</source>
        <translation>Получено от сотрудника</translation>
    </message>
    <message>
        <source>Payment of Spending</source>
        <translation>Оплата расхода</translation>
    </message>
    <message>
        <source>Payment to Counterparty</source>
        <translation>Оплата контрагенту</translation>
    </message>
    <message>
        <source>Payment to Employee</source>
        <translation>Выдано сотруднику</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Процент</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Срок</translation>
    </message>
    <message>
        <source>Period From: </source>
        <translation>Период с: </translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Телефон</translation>
    </message>
    <message>
        <source>Pick from a calendar</source>
        <translation>Выбрать в календаре</translation>
    </message>
    <message>
        <source>Pick from a calendar (Alt+Down)</source>
        <translation>Выбрать в календаре (Alt+Down)</translation>
    </message>
    <message>
        <source>Please select currency for account!</source>
        <translation>Выберите валюту счёта!</translation>
    </message>
    <message>
        <source>Please select default currency for project</source>
        <translation>Выберите основную валюту проекта</translation>
    </message>
    <message>
        <source>Please select default currency for project and confirm changes!</source>
        <translation>Выберите основную валюту проекта и подтвердите изменения!</translation>
    </message>
    <message>
        <source>Polish Zloty</source>
        <translation>Польский злотый</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Параметры…</translation>
    </message>
    <message>
        <source>Previous Tab</source>
        <translation>Предыдущая вкладка</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>Цена</translation>
    </message>
    <message>
        <source>Price Sum</source>
        <translation>Сумма продаж</translation>
    </message>
    <message>
        <source>Prices include VAT</source>
        <translation>Цены с НДС</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Print (Ctrl+P)</source>
        <translation>Печать (Ctrl+P)</translation>
    </message>
    <message>
        <source>Print Operation Warning</source>
        <translation>Печать невозможна</translation>
    </message>
    <message>
        <source>Print the VAT number on forms</source>
        <translation>Печатать ИНН на бланках</translation>
    </message>
    <message>
        <source>Print the bank details on forms</source>
        <translation>Печатать реквизиты банка на бланках</translation>
    </message>
    <message>
        <source>Print the logo on forms</source>
        <translation>Печатать логотип на бланках</translation>
    </message>
    <message>
        <source>Print…</source>
        <translation>Печать…</translation>
    </message>
    <message>
        <source>Proceed</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>Product Base Cost</source>
        <translation>Себестоимость товара</translation>
    </message>
    <message>
        <source>Product Description</source>
        <translation>Описание товара</translation>
    </message>
    <message>
        <source>Product Document '</source>
        <translation>Документ '</translation>
    </message>
    <message>
        <source>Product Documents From: </source>
        <translation>Товарные документы с: </translation>
    </message>
    <message>
        <source>Product GST Rate</source>
        <translation>Ставка GST товара</translation>
    </message>
    <message>
        <source>Product Group</source>
        <translation>Группа товаров</translation>
    </message>
    <message>
        <source>Product Journal</source>
        <translation>Товарный журнал</translation>
    </message>
    <message>
        <source>Product Name</source>
        <translation>Наименование товара</translation>
    </message>
    <message>
        <source>Product Pack</source>
        <translation>Упаковка товара</translation>
    </message>
    <message>
        <source>Product Price</source>
        <translation>Цена товара</translation>
    </message>
    <message>
        <source>Product Unit</source>
        <translation>Единица измерения товара</translation>
    </message>
    <message>
        <source>Product VAT Rate</source>
        <translation>Ставка НДС товара</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Товары</translation>
    </message>
    <message>
        <source>Products Catalog</source>
        <translation>Справочник товаров</translation>
    </message>
    <message>
        <source>Products On Warehouses</source>
        <translation>Товары на складах</translation>
    </message>
    <message>
        <source>Products On Warehouses Report</source>
        <translation>Отчёт о товарах на складах</translation>
    </message>
    <message>
        <source>Products On Warehouses Report. On date:</source>
        <translation>Отчёт о товарах на складах. На дату:</translation>
    </message>
    <message>
        <source>Products On Warehouses: </source>
        <translation>Товары на складах: </translation>
    </message>
    <message>
        <source>Products in Warehouses</source>
        <translation>Товары на складах</translation>
    </message>
    <message>
        <source>Products of that name</source>
        <translation>Товары с таким названием</translation>
    </message>
    <message>
        <source>Products on Warehouses</source>
        <translation>Товары на складах</translation>
    </message>
    <message>
        <source>Products that the document can take</source>
        <translation>Товары для документа</translation>
    </message>
    <message>
        <source>Products…</source>
        <translation>Товары…</translation>
    </message>
    <message>
        <source>Profit</source>
        <translation>Прибыль</translation>
    </message>
    <message>
        <source>Project </source>
        <translation>Проект </translation>
    </message>
    <message>
        <source>Project Management</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>Проекты</translation>
    </message>
    <message>
        <source>Projects…</source>
        <translation>Проекты…</translation>
    </message>
    <message>
        <source>Property Document '</source>
        <translation>Документ '</translation>
    </message>
    <message>
        <source>Purchase</source>
        <translation>Покупка</translation>
    </message>
    <message>
        <source>Purchase of Fixed Asset</source>
        <translation>Покупка ОС</translation>
    </message>
    <message>
        <source>Puts the products right below each manager, from the next "Refresh" on</source>
        <translation>Товары сразу под менеджером — со следующего нажатия «Обновить»</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Остаток</translation>
    </message>
    <message>
        <source>Quarter</source>
        <translation>Квартал</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выход</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Курс</translation>
    </message>
    <message>
        <source>Read again (F5)</source>
        <translation>Обновить (F5)</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Причина</translation>
    </message>
    <message>
        <source>Reasons for Write-Off</source>
        <translation>Причины списания</translation>
    </message>
    <message>
        <source>Received Sum</source>
        <translation>Получено</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Обновить</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>Remove the logo</source>
        <translation>Убрать логотип</translation>
    </message>
    <message>
        <source>Report By Account '</source>
        <translation>Отчёт по счёту '</translation>
    </message>
    <message>
        <source>Report By Counterparty '</source>
        <translation>Отчёт по контрагенту '</translation>
    </message>
    <message>
        <source>Report By Employee '</source>
        <translation>Отчёт по сотруднику '</translation>
    </message>
    <message>
        <source>Report by</source>
        <translation>Отчёт по</translation>
    </message>
    <message>
        <source>Report by Account</source>
        <translation>Отчёт по счёту</translation>
    </message>
    <message>
        <source>Report by All Counterparties.</source>
        <translation>Отчёт по всем контрагентам.</translation>
    </message>
    <message>
        <source>Report by All Spendings.</source>
        <translation>Отчёт по всем расходам.</translation>
    </message>
    <message>
        <source>Report by Counterparty</source>
        <translation>Отчёт по контрагенту</translation>
    </message>
    <message>
        <source>Report by Employee</source>
        <translation>Отчёт по сотруднику</translation>
    </message>
    <message>
        <source>Report by Selected Counterparties.</source>
        <translation>Отчёт по выбранным контрагентам.</translation>
    </message>
    <message>
        <source>Report by Selected Spendings.</source>
        <translation>Отчёт по выбранным расходам.</translation>
    </message>
    <message>
        <source>Report by Selling For Period.</source>
        <translation>Отчёт по продажам за период.</translation>
    </message>
    <message>
        <source>Report period</source>
        <translation>Отчётный период</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Отчёты</translation>
    </message>
    <message>
        <source>Reserve</source>
        <translation>Резерв</translation>
    </message>
    <message>
        <source>Residual Value</source>
        <translation>Остат. стоим.</translation>
    </message>
    <message>
        <source>Responsible</source>
        <translation>Ответственный</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Возврат</translation>
    </message>
    <message>
        <source>Rows of the document</source>
        <translation>Строки документа</translation>
    </message>
    <message>
        <source>Russian Ruble</source>
        <translation>Российский рубль</translation>
    </message>
    <message>
        <source>SALDO:</source>
        <translation>САЛЬДО:</translation>
    </message>
    <message>
        <source>SHIPPING</source>
        <translation>ДОСТАВКА</translation>
    </message>
    <message>
        <source>START PERIOD:</source>
        <translation>НАЧАЛО ПЕРИОДА:</translation>
    </message>
    <message>
        <source>SUBTOTAL</source>
        <translation>СУММА</translation>
    </message>
    <message>
        <source>SWIFT</source>
        <translation>SWIFT</translation>
    </message>
    <message>
        <source>SWIFT:</source>
        <translation>SWIFT:</translation>
    </message>
    <message>
        <source>Salary</source>
        <translation>Оклад</translation>
    </message>
    <message>
        <source>Sale</source>
        <translation>Продажа</translation>
    </message>
    <message>
        <source>Sale of Fixed Asset</source>
        <translation>Продажа ОС</translation>
    </message>
    <message>
        <source>Sale of Services</source>
        <translation>Продажа услуг</translation>
    </message>
    <message>
        <source>Sales for a Period</source>
        <translation>Продажи за период</translation>
    </message>
    <message>
        <source>Sales of a Period</source>
        <translation>Продажи за период</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Сохранить</translation>
    </message>
    <message>
        <source>Save the draft (Ctrl+S)</source>
        <translation>Сохранить черновик (Ctrl+S)</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Поиск</translation>
    </message>
    <message>
        <source>Search (Ctrl+F)</source>
        <translation>Поиск (Ctrl+F)</translation>
    </message>
    <message>
        <source>Search in the list</source>
        <translation>Поиск в списке</translation>
    </message>
    <message>
        <source>Search the counterparties</source>
        <translation>Поиск контрагентов</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Выделить всё</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>Выбран</translation>
    </message>
    <message>
        <source>Selected Counterparties</source>
        <translation>Выбранные контрагенты</translation>
    </message>
    <message>
        <source>Selected Spendings</source>
        <translation>Выбранные расходы</translation>
    </message>
    <message>
        <source>Selling</source>
        <translation>Продажа</translation>
    </message>
    <message>
        <source>Shipment</source>
        <translation>Доставка</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Кратко</translation>
    </message>
    <message>
        <source>Short Name</source>
        <translation>Сокращение</translation>
    </message>
    <message>
        <source>Shorthand</source>
        <translation>Сокращение</translation>
    </message>
    <message>
        <source>Show Left Pane</source>
        <translation>Показать левую панель</translation>
    </message>
    <message>
        <source>Show the current balance at the foot</source>
        <translation>Показывать текущий баланс внизу окна</translation>
    </message>
    <message>
        <source>Sign</source>
        <translation>Знак</translation>
    </message>
    <message>
        <source>Slider of Days of Deferred Payment</source>
        <translation>Ползунок дней отсрочки</translation>
    </message>
    <message>
        <source>Sorry this menu item not released yet!</source>
        <translation>Этот пункт меню пока не готов!</translation>
    </message>
    <message>
        <source>Spending</source>
        <translation>Расход</translation>
    </message>
    <message>
        <source>Spendings</source>
        <translation>Расходы</translation>
    </message>
    <message>
        <source>Spendings Catalog</source>
        <translation>Справочник расходов</translation>
    </message>
    <message>
        <source>Spendings Report</source>
        <translation>Отчёт по расходам</translation>
    </message>
    <message>
        <source>Start Balance</source>
        <translation>Остаток на начало</translation>
    </message>
    <message>
        <source>Start Saldo</source>
        <translation>Сальдо нач.</translation>
    </message>
    <message>
        <source>Start at the first day of the report period</source>
        <translation>Начать с первого дня отчётного периода</translation>
    </message>
    <message>
        <source>Stock In</source>
        <translation>Оприходование</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Сумма</translation>
    </message>
    <message>
        <source>Swedish Krona</source>
        <translation>Шведская крона</translation>
    </message>
    <message>
        <source>Swiss Franc</source>
        <translation>Швейцарский франк</translation>
    </message>
    <message>
        <source>TAX</source>
        <translation>Налог</translation>
    </message>
    <message>
        <source>TAX Amount</source>
        <translation>Сумма налога</translation>
    </message>
    <message>
        <source>TAX on top of prices</source>
        <translation>Налог сверх цены</translation>
    </message>
    <message>
        <source>THANK YOU FOR YOUR BUSINESS!</source>
        <translation>СПАСИБО ЗА СОТРУДНИЧЕСТВО!</translation>
    </message>
    <message>
        <source>TOTAL</source>
        <translation>ИТОГО</translation>
    </message>
    <message>
        <source>TOTAL FOR PERIOD:</source>
        <translation>ИТОГО ЗА ПЕРИОД:</translation>
    </message>
    <message>
        <source>TOTAL:</source>
        <translation>ИТОГО:</translation>
    </message>
    <message>
        <source>Tab #</source>
        <translation>Вкладка №</translation>
    </message>
    <message>
        <source>Take the counterparty out</source>
        <translation>Убрать контрагента</translation>
    </message>
    <message>
        <source>Takes effect at the next start</source>
        <translation>Начнёт действовать при следующем запуске</translation>
    </message>
    <message>
        <source>Takes the project off this list. Its file stays where it is.</source>
        <translation>Убирает проект из списка. Сам файл остаётся на месте.</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Налоги</translation>
    </message>
    <message>
        <source>Tell me of new versions when a project is opened</source>
        <translation>Сообщать о новых версиях при открытии проекта</translation>
    </message>
    <message>
        <source>The GST rate must lie between 0 and 100 percent.</source>
        <translation>Ставка GST должна быть от 0 до 100 процентов.</translation>
    </message>
    <message>
        <source>The VAT rate must lie between 0 and 100 percent.</source>
        <translation>Ставка НДС должна быть от 0 до 100 процентов.</translation>
    </message>
    <message>
        <source>The balance must be a number!</source>
        <translation>Баланс должен быть числом!</translation>
    </message>
    <message>
        <source>The changes were not applied.</source>
        <translation>Изменения не применены.</translation>
    </message>
    <message>
        <source>The changes were not saved!</source>
        <translation>Изменения не сохранены!</translation>
    </message>
    <message>
        <source>The company logo %1 cannot be read as a picture, so the form was printed without it.</source>
        <translation>Логотип компании %1 не читается как изображение, поэтому форма напечатана без него.</translation>
    </message>
    <message>
        <source>The company logo %1 was not found, so the form was printed without it.</source>
        <translation>Логотип компании %1 не найден, поэтому форма напечатана без него.</translation>
    </message>
    <message>
        <source>The company pays GST</source>
        <translation>Компания платит GST</translation>
    </message>
    <message>
        <source>The company pays VAT</source>
        <translation>Компания платит НДС</translation>
    </message>
    <message>
        <source>The currency of a stored account cannot be changed!</source>
        <translation>Валюту сохранённого счёта изменить нельзя!</translation>
    </message>
    <message>
        <source>The currency of a stored account stays as it is.</source>
        <translation>Валюту сохранённого счёта изменить нельзя.</translation>
    </message>
    <message>
        <source>The date is out of range.
</source>
        <translation>Недопустимая дата.
</translation>
    </message>
    <message>
        <source>The default currency of a project stays as it is.</source>
        <translation>Основную валюту проекта изменить нельзя.</translation>
    </message>
    <message>
        <source>The deferment must lie between 0 and %1 days.</source>
        <translation>Отсрочка должна быть от 0 до %1 дней.</translation>
    </message>
    <message>
        <source>The deferment must lie between 0 and 36500 days.
</source>
        <translation>Отсрочка должна быть от 0 до 36500 дней.
</translation>
    </message>
    <message>
        <source>The document and its rows are taken out of the project for good.</source>
        <translation>Документ и его строки будут удалены из проекта навсегда.</translation>
    </message>
    <message>
        <source>The document is confirmed already.
</source>
        <translation>Документ уже проведён.
</translation>
    </message>
    <message>
        <source>The document is not in the project any more.</source>
        <translation>Этого документа в проекте больше нет.</translation>
    </message>
    <message>
        <source>The document was confirmed or deleted in the meantime.
</source>
        <translation>Документ тем временем провели или удалили.
</translation>
    </message>
    <message>
        <source>The document's rows were changed in the meantime. Please open it again.
</source>
        <translation>Строки документа тем временем изменились. Откройте его ещё раз.
</translation>
    </message>
    <message>
        <source>The fixed asset is not held any more!</source>
        <translation>Этого основного средства больше нет на балансе!</translation>
    </message>
    <message>
        <source>The fixed asset is sold or written off already.
</source>
        <translation>Основное средство уже продано или списано.
</translation>
    </message>
    <message>
        <source>The invoice is longer than its sheet: what stands below the edge is not printed.</source>
        <translation>Счёт не умещается на листе: то, что ниже края, не напечатано.</translation>
    </message>
    <message>
        <source>The language changes at the next start.</source>
        <translation>Язык изменится при следующем запуске.</translation>
    </message>
    <message>
        <source>The last finished month is closed already.</source>
        <translation>Последний завершённый месяц уже закрыт.</translation>
    </message>
    <message>
        <source>The longest deferment must lie between 0 and 36500 days.</source>
        <translation>Наибольшая отсрочка должна быть от 0 до 36500 дней.</translation>
    </message>
    <message>
        <source>The longest deferment must not be below 0.</source>
        <translation>Наибольшая отсрочка не может быть меньше 0.</translation>
    </message>
    <message>
        <source>The period and the current cost must be numbers, the period not below 0!</source>
        <translation>Срок и остаточная стоимость должны быть числами, срок — не меньше 0!</translation>
    </message>
    <message>
        <source>The project has no settings.</source>
        <translation>В проекте нет настроек.</translation>
    </message>
    <message>
        <source>The project is in use by another program.</source>
        <translation>Проект открыт в другой программе.</translation>
    </message>
    <message>
        <source>The project is open for reading only. Nothing can be changed.</source>
        <translation>Проект открыт только для чтения. Изменить ничего нельзя.</translation>
    </message>
    <message>
        <source>The rate of a currency must be above 0!</source>
        <translation>Курс валюты должен быть больше 0!</translation>
    </message>
    <message>
        <source>The report period must be 1, 2 or 3.</source>
        <translation>Отчётный период должен быть 1, 2 или 3.</translation>
    </message>
    <message>
        <source>The salary must be a number!</source>
        <translation>Оклад должен быть числом!</translation>
    </message>
    <message>
        <source>The table was not exported!</source>
        <translation>Таблица не экспортирована!</translation>
    </message>
    <message>
        <source>There is no project at rest to copy.</source>
        <translation>Нет закрытого проекта, который можно скопировать.</translation>
    </message>
    <message>
        <source>There is no such currency.</source>
        <translation>Такой валюты нет.</translation>
    </message>
    <message>
        <source>These inputs are missing: </source>
        <translation>Не заполнены поля: </translation>
    </message>
    <message>
        <source>This is not a date.</source>
        <translation>Это не дата.</translation>
    </message>
    <message>
        <source>This is not a number. Write 1234.50 or 1234,50. Escape brings the old one back.</source>
        <translation>Это не число. Введите 1234.50 или 1234,50. Escape вернёт прежнее.</translation>
    </message>
    <message>
        <source>This period</source>
        <translation>Текущий период</translation>
    </message>
    <message>
        <source>Tick all</source>
        <translation>Отметить все</translation>
    </message>
    <message>
        <source>Tick none</source>
        <translation>Снять отметки</translation>
    </message>
    <message>
        <source>To</source>
        <translation>По</translation>
    </message>
    <message>
        <source>To</source>
        <comment>warehouse</comment>
        <translation>На склад</translation>
    </message>
    <message>
        <source>To Warehouse</source>
        <translation>На склад</translation>
    </message>
    <message>
        <source>To, this day not included</source>
        <translation>По, не включая этот день</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Итого</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Итоги</translation>
    </message>
    <message>
        <source>Transfer Between Accounts</source>
        <translation>Перевод между счетами</translation>
    </message>
    <message>
        <source>Transfer Between Warehouses</source>
        <translation>Перемещение товаров</translation>
    </message>
    <message>
        <source>Turkish Lira</source>
        <translation>Турецкая лира</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Type a product…</source>
        <translation>Введите товар…</translation>
    </message>
    <message>
        <source>Type of document</source>
        <translation>Вид документа</translation>
    </message>
    <message>
        <source>US Dollar</source>
        <translation>Доллар США</translation>
    </message>
    <message>
        <source>Ukrainian Hryvnia</source>
        <translation>Украинская гривна</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Ед. изм.</translation>
    </message>
    <message>
        <source>Unit Name</source>
        <translation>Наименование единицы</translation>
    </message>
    <message>
        <source>Unit Short Name</source>
        <translation>Сокращение единицы</translation>
    </message>
    <message>
        <source>Units</source>
        <translation>Единицы измерения</translation>
    </message>
    <message>
        <source>Units Catalog</source>
        <translation>Справочник единиц измерения</translation>
    </message>
    <message>
        <source>Units in a Pack</source>
        <translation>Единиц в упаковке</translation>
    </message>
    <message>
        <source>Update available.</source>
        <translation>Доступно обновление.</translation>
    </message>
    <message>
        <source>Ups! Something goes wrong!</source>
        <translation>Что-то пошло не так!</translation>
    </message>
    <message>
        <source>VAT</source>
        <translation>НДС</translation>
    </message>
    <message>
        <source>VAT Amount</source>
        <translation>Сумма НДС</translation>
    </message>
    <message>
        <source>VAT No.</source>
        <translation>ИНН</translation>
    </message>
    <message>
        <source>VAT Number</source>
        <translation>ИНН</translation>
    </message>
    <message>
        <source>VAT and GST cannot be used at once.</source>
        <translation>НДС и GST нельзя применять вместе.</translation>
    </message>
    <message>
        <source>VAT number</source>
        <translation>ИНН</translation>
    </message>
    <message>
        <source>VAT rate, %</source>
        <translation>Ставка НДС, %</translation>
    </message>
    <message>
        <source>VAT, %</source>
        <translation>НДС, %</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Переменный</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Версия %1</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Вид</translation>
    </message>
    <message>
        <source>Wait For Us</source>
        <translation>Ждут от нас</translation>
    </message>
    <message>
        <source>Warehouse Address</source>
        <translation>Адрес склада</translation>
    </message>
    <message>
        <source>Warehouse Manager</source>
        <translation>Заведующий складом</translation>
    </message>
    <message>
        <source>Warehouse Name</source>
        <translation>Наименование склада</translation>
    </message>
    <message>
        <source>Warehouses</source>
        <translation>Склады</translation>
    </message>
    <message>
        <source>Warehouses List</source>
        <translation>Список складов</translation>
    </message>
    <message>
        <source>We Wait</source>
        <translation>Ждём мы</translation>
    </message>
    <message>
        <source>We have not '</source>
        <translation>Нет товара «</translation>
    </message>
    <message>
        <source>We have not enough '</source>
        <translation>Не хватает товара «</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Сайт</translation>
    </message>
    <message>
        <source>What comes next?</source>
        <translation>Что дальше?</translation>
    </message>
    <message>
        <source>Within</source>
        <translation>Внутри</translation>
    </message>
    <message>
        <source>Write-Off</source>
        <translation>Списание</translation>
    </message>
    <message>
        <source>Write-Off of Fixed Asset</source>
        <translation>Списание ОС</translation>
    </message>
    <message>
        <source>Writing to %1 failed (%2); the last operation was taken back.</source>
        <translation>Запись в %1 не удалась (%2); последняя операция отменена.</translation>
    </message>
    <message>
        <source>Writing to %1 failed (%2); the whole run was taken back.</source>
        <translation>Запись в %1 не удалась (%2); все операции отменены.</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Год</translation>
    </message>
    <message>
        <source>You are trying to change contragent balance manually. It may cause of incorrectness main balance. Are you sure?</source>
        <translation>Вы меняете баланс контрагента вручную. Общий баланс может стать неверным. Вы уверены?</translation>
    </message>
    <message>
        <source>You are trying to change employee balance manually. It may cause of incorrectness main balance. Are you sure?</source>
        <translation>Вы меняете баланс сотрудника вручную. Общий баланс может стать неверным. Вы уверены?</translation>
    </message>
    <message>
        <source>You are trying to change product base cost manually. Normally it calculated by program. It may cause of incorrectness main balance. Are you sure?</source>
        <translation>Вы меняете себестоимость товара вручную. Обычно её рассчитывает программа. Общий баланс может стать неверным. Вы уверены?</translation>
    </message>
    <message>
        <source>You are trying to confirm document with date from closed period!
</source>
        <translation>Нельзя провести документ с датой из закрытого периода!
</translation>
    </message>
    <message>
        <source>Your changes will be lost if you don't save them.</source>
        <translation>Без сохранения изменения пропадут.</translation>
    </message>
    <message>
        <source>Zelvor Help</source>
        <translation>Справка Zelvor</translation>
    </message>
    <message>
        <source>all</source>
        <translation>все</translation>
    </message>
    <message>
        <source>another program has put it into write-ahead mode; opening it for writing brings it back</source>
        <translation>другая программа перевела его в режим упреждающей записи; открытие для записи вернёт обычный режим</translation>
    </message>
    <message>
        <source>another program is writing to it</source>
        <translation>в него пишет другая программа</translation>
    </message>
    <message>
        <source>const: </source>
        <translation>пост.: </translation>
    </message>
    <message>
        <source>customers</source>
        <translation>покупателям</translation>
    </message>
    <message>
        <source>days</source>
        <translation>дней</translation>
    </message>
    <message>
        <source>in use by %1 (process %2 on %3) since %4</source>
        <translation>занят: %1 (процесс %2 на %3) с %4</translation>
    </message>
    <message>
        <source>in use: its lock %1 cannot be read; remove that file if nobody works with the project</source>
        <translation>занят: не удалось прочесть файл блокировки %1; удалите его, если с проектом никто не работает</translation>
    </message>
    <message>
        <source>it cannot be opened</source>
        <translation>его не удалось открыть</translation>
    </message>
    <message>
        <source>it cannot be written</source>
        <translation>в него нельзя писать</translation>
    </message>
    <message>
        <source>it could not be brought to the disk</source>
        <translation>его не удалось записать на диск</translation>
    </message>
    <message>
        <source>it holds "%1", which is no plain table</source>
        <translation>в нём есть «%1» — это не простая таблица</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>это папка</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>он повреждён</translation>
    </message>
    <message>
        <source>it is no project file</source>
        <translation>это не файл проекта</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>это не обычный файл</translation>
    </message>
    <message>
        <source>it is the file of another program</source>
        <translation>это файл другой программы</translation>
    </message>
    <message>
        <source>its lock file cannot be written</source>
        <translation>не удалось записать его файл блокировки</translation>
    </message>
    <message>
        <source>mail:</source>
        <translation>почта:</translation>
    </message>
    <message>
        <source>managers</source>
        <translation>менеджерам</translation>
    </message>
    <message>
        <source>no</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>none</source>
        <translation>нет</translation>
    </message>
    <message>
        <source>nothing can be written in its folder</source>
        <translation>в его папку нельзя писать</translation>
    </message>
    <message>
        <source>phone:</source>
        <translation>тел.:</translation>
    </message>
    <message>
        <source>products</source>
        <translation>товарам</translation>
    </message>
    <message>
        <source>selected</source>
        <translation>выбрано</translation>
    </message>
    <message>
        <source>the examination broke off</source>
        <translation>проверка прервалась</translation>
    </message>
    <message>
        <source>the file has a second name (a hard link), and writing under one of them can destroy it</source>
        <translation>у файла есть второе имя (жёсткая ссылка), запись под одним из них может его разрушить</translation>
    </message>
    <message>
        <source>there is already a file of that name</source>
        <translation>файл с таким именем уже есть</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>такого файла нет</translation>
    </message>
    <message>
        <source>there is no such folder</source>
        <translation>такой папки нет</translation>
    </message>
    <message>
        <source>var: </source>
        <translation>перем.: </translation>
    </message>
    <message>
        <source>web:</source>
        <translation>сайт:</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>да</translation>
    </message>
    <message>
        <source>you may not read it</source>
        <translation>у вас нет права его читать</translation>
    </message>
</context>
</TS>
