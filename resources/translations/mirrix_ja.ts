<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="zh_CN">
<context>
    <name>Mirrix</name>
    <message>
        <source>枚举文件</source>
        <translation>ファイルを列挙</translation>
    </message>
    <message>
        <source>读取元数据</source>
        <translation>メタデータを読み取り</translation>
    </message>
    <message>
        <source>快速哈希</source>
        <translation>クイックハッシュ</translation>
    </message>
    <message>
        <source>完整哈希</source>
        <translation>完全ハッシュ</translation>
    </message>
    <message>
        <source>相似内容比对</source>
        <translation>類似内容の照合</translation>
    </message>
    <message>
        <source>前缀采样哈希</source>
        <translation>先頭サンプルハッシュ</translation>
    </message>
    <message>
        <source>采样指纹哈希</source>
        <translation>サンプルフィンガープリント</translation>
    </message>
    <message>
        <source>图片感知哈希</source>
        <translation>画像知覚ハッシュ</translation>
    </message>
    <message>
        <source>[%1] %2  已枚举 %3  已处理 %4/%5</source>
        <translation>[%1] %2  列挙済み %3  処理済み %4/%5</translation>
    </message>
    <message>
        <source>文件 %1 · 重复组 %2 · 文件夹组 %3 · 其余 %4 · 可回收约 %5 · 耗时 %6 秒</source>
        <translation>ファイル %1 · 重複グループ %2 · フォルダーグループ %3 · その他 %4 · 解放可能 約 %5 · 所要時間 %6 秒</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>查看操作日志</source>
        <translation>操作ログを表示</translation>
    </message>
    <message>
        <source>打开数据文件夹</source>
        <translation>データフォルダーを開く</translation>
    </message>
    <message>
        <source>完整退出</source>
        <translation>完全に終了</translation>
    </message>
    <message>
        <source>工具(&amp;T)</source>
        <translation>ツール(&amp;T)</translation>
    </message>
    <message>
        <source>哈希工具</source>
        <translation>ハッシュツール</translation>
    </message>
    <message>
        <source>选项…</source>
        <translation>オプション…</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>言語(&amp;L)</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>关于 Mirrix</source>
        <translation>Mirrix のバージョン情報</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 零广告 · 图片哈希: %2</source>
        <translation>%1 · ローカル動作 · 広告なし · 画像ハッシュ: %2</translation>
    </message>
    <message>
        <source>① 选择位置 → ② 匹配规则 → ③ 预览并清理</source>
        <translation>① 場所の選択 → ② 照合ルール → ③ プレビューと整理</translation>
    </message>
    <message>
        <source>选择一个路径开始查重</source>
        <translation>重複を探すフォルダーを選択してください</translation>
    </message>
    <message>
        <source>选好后点击左侧「开始扫描」</source>
        <translation>選択後、左側の「スキャン開始」をクリックします</translation>
    </message>
    <message>
        <source>配置匹配规则</source>
        <translation>照合ルールの設定</translation>
    </message>
    <message>
        <source>预览重复项并清理</source>
        <translation>重複を確認して整理</translation>
    </message>
    <message>
        <source>勾选要移除的副本，建议先备份再删除</source>
        <translation>削除するファイルにチェックを入れてください。先にバックアップすることをお勧めします</translation>
    </message>
    <message>
        <source>请选择要扫描的位置</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>配置规则后点击「开始扫描」</source>
        <translation type="unfinished" />
    </message>
    <message>
        <source>勾选重复项并进行清理</source>
        <translation>重複にチェックを入れて整理</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>お知らせ</translation>
    </message>
    <message>
        <source>请先勾选启用至少一个扫描位置。</source>
        <translation>スキャン場所を 1 つ以上有効にしてください。</translation>
    </message>
    <message>
        <source>扫描进行中：已锁定规则与位置页，请勿修改扫描参数。</source>
        <translation>スキャン中: ルールと場所のページはロックされ、変更できません。</translation>
    </message>
    <message>
        <source>确认开始扫描</source>
        <translation>スキャン開始の確認</translation>
    </message>
    <message>
        <source>开始扫描</source>
        <translation>スキャン開始</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>不再显示此确认</source>
        <translation>今後この確認を表示しない</translation>
    </message>
    <message>
        <source>%1 · 本地运行 · 图片哈希: %2</source>
        <translation>%1 · ローカル動作 · 画像ハッシュ: %2</translation>
    </message>
    <message>
        <source>正在取消...</source>
        <translation>キャンセルしています…</translation>
    </message>
    <message>
        <source>扫描完成 · 图片哈希后端: %1</source>
        <translation>スキャン完了 · 画像ハッシュエンジン: %1</translation>
    </message>
    <message>
        <source>位于回收站中</source>
        <translation>ごみ箱の中にあります</translation>
    </message>
    <message>
        <source>位于备份文件夹中</source>
        <translation>バックアップフォルダーの中にあります</translation>
    </message>
    <message>
        <source>位于快照中</source>
        <translation>スナップショットの中にあります</translation>
    </message>
    <message>
        <source>未能读取 %1 项：%2</source>
        <translation>読み取れなかった項目 (%1): %2</translation>
    </message>
    <message>
        <source>扫描失败</source>
        <translation>スキャンに失敗しました</translation>
    </message>
    <message>
        <source>便携模式</source>
        <translation>ポータブルモード</translation>
    </message>
    <message>
        <source>标准模式</source>
        <translation>標準モード</translation>
    </message>
    <message>
        <source>程序仍在托盘运行。可通过托盘菜单一键完整退出。</source>
        <translation>プログラムは通知領域で実行中です。通知領域のメニューから完全に終了できます。</translation>
    </message>
    <message>
        <source>显示主窗口</source>
        <translation>メインウィンドウを表示</translation>
    </message>
    <message>
        <source>一键完整退出</source>
        <translation>完全に終了</translation>
    </message>
    <message>
        <source>Mirrix · 重复文件查找与清理</source>
        <translation>Mirrix · 重複ファイルの検索と整理</translation>
    </message>
    <message>
        <source>重复文件清理</source>
        <translation>重複ファイルの整理</translation>
    </message>
    <message>
        <source>步骤</source>
        <translation>手順</translation>
    </message>
    <message>
        <source>选择位置</source>
        <translation>場所の選択</translation>
    </message>
    <message>
        <source>匹配规则</source>
        <translation>照合ルール</translation>
    </message>
    <message>
        <source>预览清理</source>
        <translation>プレビューと整理</translation>
    </message>
    <message>
        <source>停止</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>扫描过程中发生未知错误</source>
        <translation>スキャン中に不明なエラーが発生しました</translation>
    </message>
    <message>
        <source>扫描已取消</source>
        <translation>スキャンをキャンセルしました</translation>
    </message>
    <message>
        <source>可移动磁盘</source>
        <translation>リムーバブルディスク</translation>
    </message>
    <message>
        <source>本地磁盘</source>
        <translation>ローカルディスク</translation>
    </message>
    <message>
        <source>网络驱动器</source>
        <translation>ネットワークドライブ</translation>
    </message>
    <message>
        <source>光驱</source>
        <translation>光学ドライブ</translation>
    </message>
    <message>
        <source>内存盘</source>
        <translation>RAM ディスク</translation>
    </message>
    <message>
        <source>恢复失败: %1</source>
        <translation>復元に失敗しました: %1</translation>
    </message>
    <message>
        <source>备份文件已损坏，未恢复: %1</source>
        <translation>バックアップが破損しているため、復元しませんでした: %1</translation>
    </message>
    <message>
        <source>已恢复，但备份无法删除: %1</source>
        <translation>復元しましたが、バックアップを削除できませんでした: %1</translation>
    </message>
    <message>
        <source>备份索引无法写入: %1</source>
        <translation>バックアップの索引を書き込めません: %1</translation>
    </message>
    <message>
        <source>原路径已存在文件，已取消恢复: %1</source>
        <translation>元の場所に既にファイルがあるため、復元を中止しました: %1</translation>
    </message>
    <message>
        <source>无法移动到备份目录: %1</source>
        <translation>バックアップフォルダーに移動できません: %1</translation>
    </message>
    <message>
        <source>文件在扫描后已更改，已保留: %1</source>
        <translation>スキャン後に変更されたため保持しました: %1</translation>
    </message>
    <message>
        <source>要保留的文件已更改，未处理: %1</source>
        <translation>保持するファイルが変更されているため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>与要保留的文件可能是同一个文件，未处理: %1</source>
        <translation>保持するファイルと同一の可能性があるため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>无法创建目标目录: %1</source>
        <translation>フォルダーを作成できません: %1</translation>
    </message>
    <message>
        <source>目标已存在: %1</source>
        <translation>同じ名前のファイルが既に存在します: %1</translation>
    </message>
    <message>
        <source>链接路径已存在: %1</source>
        <translation>リンクのパスは既に存在します: %1</translation>
    </message>
    <message>
        <source>没有创建符号链接的权限（请启用开发人员模式或以管理员身份运行）: %1</source>
        <translation>シンボリックリンクを作成する権限がありません (開発者モードを有効にするか、管理者として実行してください): %1</translation>
    </message>
    <message>
        <source>无法删除: %1</source>
        <translation>削除できません: %1</translation>
    </message>
    <message>
        <source>文件夹已不为空，或不允许删除: %1</source>
        <translation>フォルダーが空でなくなったか、削除が許可されていません: %1</translation>
    </message>
    <message>
        <source>无法移动: %1</source>
        <translation>移動できません: %1</translation>
    </message>
    <message>
        <source>无法复制: %1</source>
        <translation>コピーできません: %1</translation>
    </message>
    <message>
        <source>无法创建硬链接: %1</source>
        <translation>ハードリンクを作成できません: %1</translation>
    </message>
    <message>
        <source>无法创建符号链接: %1</source>
        <translation>シンボリックリンクを作成できません: %1</translation>
    </message>
    <message>
        <source>文件不存在: %1</source>
        <translation>ファイルが見つかりません: %1</translation>
    </message>
    <message>
        <source>链接目标不是可用的文件: %1</source>
        <translation>リンク先は使用できるファイルではありません: %1</translation>
    </message>
    <message>
        <source>原文件未能放回，可从备份中恢复: %1</source>
        <translation>ファイルを元に戻せませんでした。バックアップから復元できます: %1</translation>
    </message>
    <message>
        <source>无法放入回收站，已保留: %1</source>
        <translation>ごみ箱に入れられないため保持しました: %1</translation>
    </message>
    <message>
        <source>无法写入清理记录: %1 (%2)</source>
        <translation>クリーンアップの記録を書き込めません: %1 (%2)</translation>
    </message>
    <message>
        <source>清理记录正被另一程序使用: %1</source>
        <translation>クリーンアップの記録は別のプログラムが使用中です: %1</translation>
    </message>
    <message>
        <source>清理记录已损坏，只读到完好部分: %1</source>
        <translation>クリーンアップの記録が破損しているため、正常な部分だけを読み込みました: %1</translation>
    </message>
    <message>
        <source>无法读取清理记录（已损坏或来自另一台计算机）: %1</source>
        <translation>クリーンアップの記録を読み込めません（破損、または別のコンピューターのもの）: %1</translation>
    </message>
    <message>
        <source>无法重新生成，当时未与要保留的文件比较内容: %1</source>
        <translation>作り直せません。保持するファイルと内容を比較していませんでした: %1</translation>
    </message>
    <message>
        <source>无法重新生成，要保留的文件不存在或已更改: %1 (%2)</source>
        <translation>作り直せません。保持するファイルがないか変更されています: %1 (%2)</translation>
    </message>
    <message>
        <source>已不在回收站中，无法恢复: %1</source>
        <translation>ごみ箱にないため復元できません: %1</translation>
    </message>
    <message>
        <source>文件已不在此处或已更改，未恢复: %1 (%2)</source>
        <translation>元の置き場所にないか変更されているため、復元しませんでした: %1 (%2)</translation>
    </message>
    <message>
        <source>文件夹或磁盘不存在，未恢复: %1 (%2)</source>
        <translation>フォルダーまたはドライブがないため、復元しませんでした: %1 (%2)</translation>
    </message>
    <message>
        <source>已恢复，但原链接无法删除: %1</source>
        <translation>復元しましたが、リンクを削除できませんでした: %1</translation>
    </message>
    <message>
        <source>已恢复，但无法还原修改时间或权限: %1</source>
        <translation>復元しましたが、更新日時または権限を設定できませんでした: %1</translation>
    </message>
    <message>
        <source>批量移入回收站失败 (code %1, %2 个文件)</source>
        <translation>ごみ箱に移動できませんでした (コード %1、%2 個のファイル)</translation>
    </message>
    <message>
        <source>未移入回收站，仍在原处: %1</source>
        <translation>ごみ箱に移動されず、元の場所にあります: %1</translation>
    </message>
    <message>
        <source>保留最新文件</source>
        <translation>最も新しいファイルを保持</translation>
    </message>
    <message>
        <source>保留最旧文件</source>
        <translation>最も古いファイルを保持</translation>
    </message>
    <message>
        <source>保留最上层目录</source>
        <translation>最も浅い階層のファイルを保持</translation>
    </message>
    <message>
        <source>保留最深路径</source>
        <translation>最も深い階層のファイルを保持</translation>
    </message>
    <message>
        <source>选择备份目录</source>
        <translation>バックアップフォルダーを選択</translation>
    </message>
    <message>
        <source>高级选项（保留规则、备份等）</source>
        <translation>詳細オプション (保持ルール、バックアップなど)</translation>
    </message>
    <message>
        <source>保留规则</source>
        <translation>保持ルール</translation>
    </message>
    <message>
        <source>跳过隐藏文件</source>
        <translation>隠しファイルをスキップ</translation>
    </message>
    <message>
        <source>排除系统目录</source>
        <translation>システムフォルダーを除外</translation>
    </message>
    <message>
        <source>删除前自动备份</source>
        <translation>削除前に自動でバックアップ</translation>
    </message>
    <message>
        <source>备份目录</source>
        <translation>バックアップフォルダー</translation>
    </message>
    <message>
        <source>选择要扫描的磁盘 / 分区</source>
        <translation>スキャンするドライブ / パーティション</translation>
    </message>
    <message>
        <source>勾选分区后加入扫描列表（不会立即开始扫描）。
系统目录仍会默认排除。建议慎选系统盘整盘扫描。</source>
        <translation>パーティションにチェックを入れてスキャンリストに追加します (スキャンはまだ開始されません)。
システムフォルダーは除外されたままです。システムドライブ全体のスキャンは慎重に検討してください。</translation>
    </message>
    <message>
        <source>加入扫描列表</source>
        <translation>スキャンリストに追加</translation>
    </message>
    <message>
        <source>未勾选任何磁盘。</source>
        <translation>ドライブにチェックが入っていません。</translation>
    </message>
    <message>
        <source>系统盘确认</source>
        <translation>システムドライブの確認</translation>
    </message>
    <message>
        <source>您选择了系统盘。整盘扫描耗时较长，系统目录仍会排除。
是否加入扫描列表？</source>
        <translation>システムドライブにチェックが入っています。ドライブ全体のスキャンには時間がかかります。システムフォルダーは除外されたままです。
スキャンリストに追加しますか?</translation>
    </message>
    <message>
        <source>确认添加</source>
        <translation>リストへの追加</translation>
    </message>
    <message>
        <source>将 %1 个分区加入扫描列表（不会立即开始扫描）：
%2</source>
        <translation>%1 個のパーティションをスキャンリストに追加します (スキャンはまだ開始されません):
%2</translation>
    </message>
    <message>
        <source>未检测到可扫描的磁盘或分区。</source>
        <translation>スキャンできるドライブまたはパーティションが見つかりません。</translation>
    </message>
    <message>
        <source>选择要排除的文件夹</source>
        <translation>除外するフォルダーを選択</translation>
    </message>
    <message>
        <source>排除目录</source>
        <translation>除外フォルダー</translation>
    </message>
    <message>
        <source>+ 排除</source>
        <translation>+ 除外</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>外す</translation>
    </message>
    <message>
        <source>选择一个扫描时不进入的文件夹</source>
        <translation>スキャン対象から外すフォルダーを選択します</translation>
    </message>
    <message>
        <source>从排除目录中移除选中的文件夹</source>
        <translation>選択したフォルダーを除外フォルダーから外します</translation>
    </message>
    <message>
        <source>可操作文件夹</source>
        <translation>フォルダーの参照</translation>
    </message>
    <message>
        <source>浏览文件夹，用右侧的 → 加入扫描位置；
也可以从资源管理器把文件夹拖入扫描列表。</source>
        <translation>フォルダーを参照し、右側の → でスキャン場所に追加します。
エクスプローラーからスキャンリストへドラッグすることもできます。</translation>
    </message>
    <message>
        <source>将选中的文件夹加入扫描位置</source>
        <translation>選択したフォルダーをスキャン場所に追加</translation>
    </message>
    <message>
        <source>选择要扫描的文件夹</source>
        <translation>スキャンするフォルダーを選択</translation>
    </message>
    <message>
        <source>每行一个扫描位置，状态列=启用/停用，已保护=不扫描。</source>
        <translation>1 行につき 1 つのスキャン場所。状態 = 有効/無効、保護 = スキャンしない。</translation>
    </message>
    <message>
        <source>+文件夹</source>
        <translation>+ フォルダー</translation>
    </message>
    <message>
        <source>+磁盘</source>
        <translation>+ ドライブ</translation>
    </message>
    <message>
        <source>移除所选</source>
        <translation>リストから外す</translation>
    </message>
    <message>
        <source>清空列表</source>
        <translation>リストをクリア</translation>
    </message>
    <message>
        <source>选择一个文件夹加入扫描位置</source>
        <translation>スキャン場所に追加するフォルダーを選択</translation>
    </message>
    <message>
        <source>已包含</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>🔒 已保护</source>
        <translation>🔒 保護</translation>
    </message>
    <message>
        <source>锁 否</source>
        <translation>保護なし</translation>
    </message>
    <message>
        <source>📂 是</source>
        <translation>📂 はい</translation>
    </message>
    <message>
        <source>📂 否</source>
        <translation>📂 いいえ</translation>
    </message>
    <message>
        <source>文件夹名称</source>
        <translation>フォルダー名</translation>
    </message>
    <message>
        <source>状态</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>已保护</source>
        <translation>保護</translation>
    </message>
    <message>
        <source>扫描子目录</source>
        <translation>サブフォルダーもスキャン</translation>
    </message>
    <message>
        <source>查找重复</source>
        <translation>重複を検索</translation>
    </message>
    <message>
        <source>显示其余文件</source>
        <translation>その他のファイルを表示</translation>
    </message>
    <message>
        <source>🔍 查找重复</source>
        <translation>🔍 重複を検索</translation>
    </message>
    <message>
        <source>📄 相同文件名</source>
        <translation>📄 同じファイル名</translation>
    </message>
    <message>
        <source>🗑 空文件</source>
        <translation>🗑 空のファイル</translation>
    </message>
    <message>
        <source>%1
现在找不到这个文件夹。</source>
        <translation>%1
このフォルダーは現在見つかりません。</translation>
    </message>
    <message>
        <source>扫描位置</source>
        <translation>スキャン場所</translation>
    </message>
    <message>
        <source>桌面</source>
        <translation>デスクトップ</translation>
    </message>
    <message>
        <source>文档</source>
        <translation>ドキュメント</translation>
    </message>
    <message>
        <source>下载</source>
        <translation>ダウンロード</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>ピクチャ</translation>
    </message>
    <message>
        <source>音乐</source>
        <translation>ミュージック</translation>
    </message>
    <message>
        <source>视频</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>快捷位置</source>
        <translation>よく使う場所</translation>
    </message>
    <message>
        <source>本地磁盘 (%1)</source>
        <translation>ローカルディスク (%1)</translation>
    </message>
    <message>
        <source>扫描进行中，批量操作已暂停。</source>
        <translation>スキャン中のため、一括操作は一時停止しています。</translation>
    </message>
    <message>
        <source>「重复文件夹」为只读视图；删除/导出请切换到「重复文件」Tab。</source>
        <translation>「重複フォルダー」は読み取り専用です。削除やエクスポートは「重複ファイル」タブで行ってください。</translation>
    </message>
    <message>
        <source>「其余文件」为只读视图；请切换到「重复文件」Tab 勾选处理。</source>
        <translation>「その他のファイル」は読み取り専用です。「重複ファイル」タブでチェックを入れてください。</translation>
    </message>
    <message>
        <source>扫描完成后，在左侧勾选重复项再执行批量操作。</source>
        <translation>スキャン完了後、左側で重複にチェックを入れてから一括操作を実行します。</translation>
    </message>
    <message>
        <source>已勾选 %1 个文件</source>
        <translation>チェックを入れたファイル: %1 個</translation>
    </message>
    <message>
        <source>分组</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>文件夹组 #%1</source>
        <translation>フォルダーグループ #%1</translation>
    </message>
    <message>
        <source>文件夹路径</source>
        <translation>フォルダーのパス</translation>
    </message>
    <message>
        <source>文件数</source>
        <translation>ファイル数</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>容量未知</source>
        <translation>容量不明</translation>
    </message>
    <message>
        <source>%1 / 可用 %2</source>
        <translation>%1 / 空き %2</translation>
    </message>
    <message>
        <source>无标签</source>
        <translation>ラベルなし</translation>
    </message>
    <message>
        <source>  ·系统盘</source>
        <translation>  ·システムドライブ</translation>
    </message>
    <message>
        <source>文件已不存在或无法访问</source>
        <translation>ファイルは既に存在しないか、アクセスできません</translation>
    </message>
    <message>
        <source>图片过大，无法预览</source>
        <translation>画像が大きすぎるためプレビューできません</translation>
    </message>
    <message>
        <source>无法读取此图片</source>
        <translation>この画像は読み取れません</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>修改时间</source>
        <translation>更新日時</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>文件 / 分组</source>
        <translation>ファイル / グループ</translation>
    </message>
    <message>
        <source>分组 #%1  (%2 个文件, 可回收 %3)</source>
        <translation>グループ #%1  (%2 個のファイル、解放可能 %3)</translation>
    </message>
    <message>
        <source>本组所有文件均已勾选，处理后将不保留任何副本。</source>
        <translation>このグループのすべてのファイルにチェックが入っています。処理すると、このグループのファイルは 1 つも残りません。</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2
修改: %3
后缀: %4</source>
        <translation>パス: %1
サイズ: %2
更新: %3
拡張子: %4</translation>
    </message>
    <message>
        <source>
尺寸: %1 × %2</source>
        <translation>
寸法: %1 × %2</translation>
    </message>
    <message>
        <source>
相机: %1 %2</source>
        <translation>
カメラ: %1 %2</translation>
    </message>
    <message>
        <source>
拍摄: %1</source>
        <translation>
撮影: %1</translation>
    </message>
    <message>
        <source>
艺术家: %1</source>
        <translation>
アーティスト: %1</translation>
    </message>
    <message>
        <source>
标题: %1</source>
        <translation>
タイトル: %1</translation>
    </message>
    <message>
        <source>常规模式</source>
        <translation>一般モード</translation>
    </message>
    <message>
        <source>图片模式</source>
        <translation>画像モード</translation>
    </message>
    <message>
        <source>音频模式</source>
        <translation>音声モード</translation>
    </message>
    <message>
        <source>视频模式</source>
        <translation>動画モード</translation>
    </message>
    <message>
        <source>完全相同匹配</source>
        <translation>完全一致</translation>
    </message>
    <message>
        <source>非常近似匹配</source>
        <translation>ほぼ一致</translation>
    </message>
    <message>
        <source>近似匹配</source>
        <translation>近似</translation>
    </message>
    <message>
        <source>相似匹配</source>
        <translation>類似</translation>
    </message>
    <message>
        <source>宽松相似</source>
        <translation>おおまかに類似</translation>
    </message>
    <message>
        <source>采样指纹（多点哈希）</source>
        <translation>サンプルフィンガープリント (多点ハッシュ)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 2 分钟采样）</source>
        <translation>近似 (先頭約 2 分のサンプル)</translation>
    </message>
    <message>
        <source>近似匹配（开头约 30 秒采样）</source>
        <translation>近似 (先頭約 30 秒のサンプル)</translation>
    </message>
    <message>
        <source>全文件精确哈希</source>
        <translation>ファイル全体の正確なハッシュ</translation>
    </message>
    <message>
        <source>仅按标签匹配</source>
        <translation>タグのみで照合</translation>
    </message>
    <message>
        <source>开头采样哈希</source>
        <translation>先頭サンプルハッシュ</translation>
    </message>
    <message>
        <source>全文件多点哈希（较慢）</source>
        <translation>ファイル全体の多点ハッシュ (低速)</translation>
    </message>
    <message>
        <source>仅显示</source>
        <translation>表示のみ</translation>
    </message>
    <message>
        <source>必须匹配</source>
        <translation>一致必須</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>無視</translation>
    </message>
    <message>
        <source>不限</source>
        <translation>制限なし</translation>
    </message>
    <message>
        <source>、</source>
        <translation>、</translation>
    </message>
    <message>
        <source>• 图像相似度：%1</source>
        <translation>• 画像の類似度: %1</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>翻转</source>
        <translation>反転</translation>
    </message>
    <message>
        <source>• 变体：%1</source>
        <translation>• バリエーション: %1</translation>
    </message>
    <message>
        <source>• 匹配：相同内容（字节级）</source>
        <translation>• 照合: 同じ内容 (バイト単位)</translation>
    </message>
    <message>
        <source>• 匹配：相似内容（采样一致 ≥ %1%）</source>
        <translation>• 照合: 類似内容 (サンプルの一致 ≥ %1%)</translation>
    </message>
    <message>
        <source>• 匹配：忽略内容（名称/大小/日期规则）</source>
        <translation>• 照合: 内容を無視 (名前/サイズ/日付のルール)</translation>
    </message>
    <message>
        <source>• 音频比对：%1</source>
        <translation>• 音声の照合: %1</translation>
    </message>
    <message>
        <source>• 视频比对：%1</source>
        <translation>• 動画の照合: %1</translation>
    </message>
    <message>
        <source>• 扫描位置：%1</source>
        <translation>• スキャン場所: %1</translation>
    </message>
    <message>
        <source>    … 另有 %1 个</source>
        <translation>    … ほか %1 個</translation>
    </message>
    <message>
        <source>• 排除目录：%1</source>
        <translation>• 除外フォルダー: %1</translation>
    </message>
    <message>
        <source>• 大小限制：%1 ~ %2</source>
        <translation>• サイズ制限: %1 ~ %2</translation>
    </message>
    <message>
        <source>• 包含扩展名：%1</source>
        <translation>• 対象の拡張子: %1</translation>
    </message>
    <message>
        <source>• 排除扩展名：%1</source>
        <translation>• 除外する拡張子: %1</translation>
    </message>
    <message>
        <source>隐藏文件</source>
        <translation>隠しファイル</translation>
    </message>
    <message>
        <source>系统目录</source>
        <translation>システムフォルダー</translation>
    </message>
    <message>
        <source>• 跳过：%1</source>
        <translation>• スキップ: %1</translation>
    </message>
    <message>
        <source>请确认以下扫描设置：</source>
        <translation>次のスキャン設定を確認してください:</translation>
    </message>
    <message>
        <source>• 模式：%1</source>
        <translation>• モード: %1</translation>
    </message>
    <message>
        <source>扫描在本地执行，文件不会上传到网络。</source>
        <translation>スキャンはローカルで行われ、ファイルがアップロードされることはありません。</translation>
    </message>
    <message>
        <source>拍摄时间</source>
        <translation>撮影日時</translation>
    </message>
    <message>
        <source>相机品牌</source>
        <translation>カメラの製造元</translation>
    </message>
    <message>
        <source>相机型号</source>
        <translation>カメラのモデル</translation>
    </message>
    <message>
        <source>图片描述</source>
        <translation>画像の説明</translation>
    </message>
    <message>
        <source>用户注释</source>
        <translation>ユーザーコメント</translation>
    </message>
    <message>
        <source>镜头型号</source>
        <translation>レンズのモデル</translation>
    </message>
    <message>
        <source>感光度</source>
        <translation>ISO 感度</translation>
    </message>
    <message>
        <source>光圈值</source>
        <translation>絞り値</translation>
    </message>
    <message>
        <source>曝光时间</source>
        <translation>露出時間</translation>
    </message>
    <message>
        <source>焦距</source>
        <translation>焦点距離</translation>
    </message>
    <message>
        <source>处理软件</source>
        <translation>ソフトウェア</translation>
    </message>
    <message>
        <source>艺术家</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>专辑</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>音轨号</source>
        <translation>トラック番号</translation>
    </message>
    <message>
        <source>年代</source>
        <translation>年</translation>
    </message>
    <message>
        <source>流派</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>歌词作者</source>
        <translation>作詞者</translation>
    </message>
    <message>
        <source>比特率</source>
        <translation>ビットレート</translation>
    </message>
    <message>
        <source>采样率</source>
        <translation>サンプルレート</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>导演</source>
        <translation>監督</translation>
    </message>
    <message>
        <source>批量操作</source>
        <translation>一括操作</translation>
    </message>
    <message>
        <source>按规则自动勾选</source>
        <translation>ルールに従ってチェックを入れる</translation>
    </message>
    <message>
        <source>全选重复项</source>
        <translation>すべての重複にチェック</translation>
    </message>
    <message>
        <source>反选</source>
        <translation>チェックを反転</translation>
    </message>
    <message>
        <source>清空结果</source>
        <translation>結果をクリア</translation>
    </message>
    <message>
        <source>移动到备份文件夹</source>
        <translation>バックアップフォルダーに移動</translation>
    </message>
    <message>
        <source>删除所选</source>
        <translation>チェックを入れた項目を削除</translation>
    </message>
    <message>
        <source>导出…</source>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>文件预览</source>
        <translation>ファイルのプレビュー</translation>
    </message>
    <message>
        <source>选择文件以预览</source>
        <translation>プレビューするファイルを選択してください</translation>
    </message>
    <message>
        <source>文件夹: %1</source>
        <translation>フォルダー: %1</translation>
    </message>
    <message>
        <source>无图像预览
%1</source>
        <translation>画像のプレビューはありません
%1</translation>
    </message>
    <message>
        <source>在资源管理器中打开</source>
        <translation>エクスプローラーで開く</translation>
    </message>
    <message>
        <source>打开文件</source>
        <translation>ファイルを開く</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>ファイルの場所を開く</translation>
    </message>
    <message>
        <source>复制路径</source>
        <translation>パスをコピー</translation>
    </message>
    <message>
        <source>复制文件夹路径</source>
        <translation>フォルダーのパスをコピー</translation>
    </message>
    <message>
        <source>尚未扫描。请选择扫描模式，添加目录后点击“立即扫描”。</source>
        <translation>まだスキャンしていません。モードを選択し、フォルダーを追加して「スキャン開始」をクリックしてください。</translation>
    </message>
    <message>
        <source>视图：</source>
        <translation>表示:</translation>
    </message>
    <message>
        <source>列表</source>
        <translation>リスト</translation>
    </message>
    <message>
        <source>缩略图</source>
        <translation>サムネイル</translation>
    </message>
    <message>
        <source>重复文件</source>
        <translation>重複ファイル</translation>
    </message>
    <message>
        <source>重复文件夹</source>
        <translation>重複フォルダー</translation>
    </message>
    <message>
        <source>其余 / 唯一文件</source>
        <translation>その他 / 重複のないファイル</translation>
    </message>
    <message>
        <source>就绪</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>全部展开</source>
        <translation>すべて展開</translation>
    </message>
    <message>
        <source>全部折叠</source>
        <translation>すべて折りたたむ</translation>
    </message>
    <message>
        <source>对比图片 (选 2 个)</source>
        <translation>画像を比較 (2 つ選択)</translation>
    </message>
    <message>
        <source>全选本组重复项</source>
        <translation>グループ内のすべての重複にチェック</translation>
    </message>
    <message>
        <source>音频文件匹配配置</source>
        <translation>音声の照合設定</translation>
    </message>
    <message>
        <source>音频指纹基于采样，并非 Chromaprint 级别。</source>
        <translation>音声フィンガープリントはサンプルに基づくもので、Chromaprint ほどの精度はありません。</translation>
    </message>
    <message>
        <source> 毫秒</source>
        <translation> ミリ秒</translation>
    </message>
    <message>
        <source>音频文件标签</source>
        <translation>音声ファイルのタグ</translation>
    </message>
    <message>
        <source>文件类型</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>扩展名</source>
        <translation>拡張子</translation>
    </message>
    <message>
        <source>使用当前模式的扩展名</source>
        <translation>現在のモードの拡張子を使用</translation>
    </message>
    <message>
        <source>勾选时按当前扫描模式扩展名扫描；取消勾选则仅扫描「已包含」列表中的扩展名。</source>
        <translation>オンにすると、現在のスキャンモードの拡張子でスキャンします。オフにすると、「対象」リストの拡張子のみをスキャンします。</translation>
    </message>
    <message>
        <source>已排除</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>例如：jpg, png</source>
        <translation>例: jpg, png</translation>
    </message>
    <message>
        <source>用逗号、分号或空格分隔；* 或 *.* 表示全部</source>
        <translation>コンマ、セミコロン、スペースで区切ります。* または *.* はすべてを表します</translation>
    </message>
    <message>
        <source>图片模式包含更多 RAW 格式</source>
        <translation>画像モードでより多くの RAW 形式を含める</translation>
    </message>
    <message>
        <source>图片模式下还扫描 arw、dng、rw2、orf、srw 等相机 RAW 文件；
raw、cr2、nef 始终扫描。仅在「已包含」列表为空时有效。</source>
        <translation>画像モードで arw、dng、rw2、orf、srw などのカメラ RAW ファイルもスキャンします。
raw、cr2、nef は常にスキャンされます。「対象」リストが空の場合のみ有効です。</translation>
    </message>
    <message>
        <source>文件大小</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>不限大小</source>
        <translation>サイズを制限しない</translation>
    </message>
    <message>
        <source>最小</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>最大</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>任意日期</source>
        <translation>すべての日付</translation>
    </message>
    <message>
        <source>创建日期</source>
        <translation>作成日</translation>
    </message>
    <message>
        <source>修改日期</source>
        <translation>更新日</translation>
    </message>
    <message>
        <source>从这一天开始</source>
        <translation>この日以降</translation>
    </message>
    <message>
        <source>到这一天为止（含当天）</source>
        <translation>この日まで (当日を含む)</translation>
    </message>
    <message>
        <source>更多判断重复的选项</source>
        <translation>その他の重複判定条件</translation>
    </message>
    <message>
        <source>内容匹配</source>
        <translation>内容の照合</translation>
    </message>
    <message>
        <source>相同内容</source>
        <translation>同じ内容</translation>
    </message>
    <message>
        <source>相似内容</source>
        <translation>類似内容</translation>
    </message>
    <message>
        <source>忽略内容</source>
        <translation>内容を無視</translation>
    </message>
    <message>
        <source>以下模式互斥：
• 相同内容 = 逐字节一致（默认）
• 相似内容 = 字节近似匹配
• 忽略内容 = 仅按元数据规则</source>
        <translation>次のモードは同時に選択できません:
• 同じ内容 = バイト単位で一致 (既定)
• 類似内容 = バイト単位の近似照合
• 内容を無視 = メタデータのルールのみ</translation>
    </message>
    <message>
        <source>采样一致的最低比例</source>
        <translation>サンプル一致の下限</translation>
    </message>
    <message>
        <source>不读文件内容，仅用下方「更多判断重复的选项」分组（名称/大小/日期等）。</source>
        <translation>ファイルの内容は読み取らず、下の「その他の重複判定条件」(名前/サイズ/日付など) のみでグループ化します。</translation>
    </message>
    <message>
        <source>文件名</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>相同文件名</source>
        <translation>同じファイル名</translation>
    </message>
    <message>
        <source>相同文件拓展名</source>
        <translation>同じ拡張子</translation>
    </message>
    <message>
        <source>相似文件名</source>
        <translation>類似したファイル名</translation>
    </message>
    <message>
        <source>忽略文件名中「副本」字样</source>
        <translation>ファイル名末尾の Copy、副本、(2) などを無視</translation>
    </message>
    <message>
        <source>包括其他语言</source>
        <translation>他の言語も含める</translation>
    </message>
    <message>
        <source>也忽略其他语言的系统和文件管理器给副本起的名称，例如“- Kopie”、“(otra copia)”</source>
        <translation>他の言語のシステムやファイルマネージャーがコピーの名前に付ける文字（「- Kopie」「(otra copia)」など）も無視します</translation>
    </message>
    <message>
        <source>相同文件大小</source>
        <translation>同じファイルサイズ</translation>
    </message>
    <message>
        <source>容差</source>
        <translation>許容差</translation>
    </message>
    <message>
        <source>容差单位</source>
        <translation>許容差の単位</translation>
    </message>
    <message>
        <source>相同创建日期</source>
        <translation>同じ作成日</translation>
    </message>
    <message>
        <source>仅匹配日期</source>
        <translation>日付のみ照合</translation>
    </message>
    <message>
        <source>相同修改日期</source>
        <translation>同じ更新日</translation>
    </message>
    <message>
        <source>磁盘</source>
        <translation>ドライブ</translation>
    </message>
    <message>
        <source>相同磁盘</source>
        <translation>同じドライブ</translation>
    </message>
    <message>
        <source>文件夹与路径</source>
        <translation>フォルダーとパス</translation>
    </message>
    <message>
        <source>相同的文件夹名称</source>
        <translation>同じフォルダー名</translation>
    </message>
    <message>
        <source>匹配完整路径</source>
        <translation>フルパスを照合</translation>
    </message>
    <message>
        <source>匹配文件夹路径深度</source>
        <translation>フォルダーパスの深さを照合</translation>
    </message>
    <message>
        <source>匹配扫描位置以下路径</source>
        <translation>スキャン場所より下のパスを照合</translation>
    </message>
    <message>
        <source>忽略在同一文件夹的重复组别</source>
        <translation>同じフォルダー内の重複グループを無視</translation>
    </message>
    <message>
        <source>文本匹配选项</source>
        <translation>テキストの照合オプション</translation>
    </message>
    <message>
        <source>大小写敏感</source>
        <translation>大文字と小文字を区別</translation>
    </message>
    <message>
        <source>相似文本 - 容差</source>
        <translation>類似テキスト - 許容差</translation>
    </message>
    <message>
        <source>相似文件名之间最多相差的字符数</source>
        <translation>類似したファイル名で異なってもよい最大文字数</translation>
    </message>
    <message>
        <source>图片匹配配置</source>
        <translation>画像の照合設定</translation>
    </message>
    <message>
        <source>匹配RAW图像时使用内嵌JPG图像（较快）</source>
        <translation>RAW の照合に埋め込み JPEG を使用 (高速)</translation>
    </message>
    <message>
        <source>性能</source>
        <translation>パフォーマンス</translation>
    </message>
    <message>
        <source>使用图片特征值缓存</source>
        <translation>画像特徴キャッシュを使用</translation>
    </message>
    <message>
        <source>图片标签</source>
        <translation>画像のタグ</translation>
    </message>
    <message>
        <source>匹配精度</source>
        <translation>照合の精度</translation>
    </message>
    <message>
        <source>图像相似度</source>
        <translation>画像の類似度</translation>
    </message>
    <message>
        <source>尺寸约束</source>
        <translation>寸法の条件</translation>
    </message>
    <message>
        <source>相同尺寸</source>
        <translation>同じ寸法</translation>
    </message>
    <message>
        <source>宽高比</source>
        <translation>縦横比</translation>
    </message>
    <message>
        <source>相同长宽比</source>
        <translation>同じ縦横比</translation>
    </message>
    <message>
        <source>变换匹配</source>
        <translation>変形の照合</translation>
    </message>
    <message>
        <source>查找旋转过的</source>
        <translation>回転した画像を検索</translation>
    </message>
    <message>
        <source>查找翻转过的</source>
        <translation>反転した画像を検索</translation>
    </message>
    <message>
        <source>同时要求颜色分布（直方图）一致</source>
        <translation>色の分布 (ヒストグラム) の一致も必須とする</translation>
    </message>
    <message>
        <source>时间分组</source>
        <translation>時間でグループ化</translation>
    </message>
    <message>
        <source>按摄制时间分组</source>
        <translation>撮影日時でグループ化</translation>
    </message>
    <message>
        <source> 秒</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>摄制时间最多相差</source>
        <translation>撮影日時の最大差</translation>
    </message>
    <message>
        <source>GPS分组</source>
        <translation>GPS でグループ化</translation>
    </message>
    <message>
        <source>按GPS地理位置分组</source>
        <translation>GPS の位置情報でグループ化</translation>
    </message>
    <message>
        <source>拍摄地点最多相距</source>
        <translation>撮影場所の最大距離</translation>
    </message>
    <message>
        <source>匹配方式</source>
        <translation>照合方法</translation>
    </message>
    <message>
        <source>仅按标签匹配时，请至少将一个标签设为「必须匹配」</source>
        <translation>タグのみで照合する場合は、1 つ以上のタグを「一致必須」にしてください</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>再生時間</translation>
    </message>
    <message>
        <source>匹配时长</source>
        <translation>再生時間を照合</translation>
    </message>
    <message>
        <source>忽略指向同一文件的硬链接</source>
        <translation>同じファイルを指すハードリンクを無視</translation>
    </message>
    <message>
        <source>硬链接只是同一份数据的另一个名称，移除它不会释放空间。</source>
        <translation>ハードリンクは同じデータの別名であり、削除しても空き容量は増えません。</translation>
    </message>
    <message>
        <source>标签</source>
        <translation>タグ</translation>
    </message>
    <message>
        <source>匹配</source>
        <translation>照合</translation>
    </message>
    <message>
        <source>勾选=启用标签匹配；取消=忽略本组标签，仅用其它条件分组</source>
        <translation>オン = タグで照合、オフ = このグループのタグを無視し、ほかの条件のみでグループ化</translation>
    </message>
    <message>
        <source>+ 添加</source>
        <translation>+ 追加</translation>
    </message>
    <message>
        <source>视频匹配配置</source>
        <translation>動画の照合設定</translation>
    </message>
    <message>
        <source>字节采样近似比对，并非逐帧视频指纹。</source>
        <translation>バイトサンプルによる近似照合であり、フレームごとの動画フィンガープリントではありません。</translation>
    </message>
    <message>
        <source>时:分:秒.毫秒</source>
        <translation>時:分:秒.ミリ秒</translation>
    </message>
    <message>
        <source>视频文件标签</source>
        <translation>動画ファイルのタグ</translation>
    </message>
    <message>
        <source>已复制 %1 个文件</source>
        <translation>%1 個のファイルをコピーしました</translation>
    </message>
    <message>
        <source>无法写入文件。</source>
        <translation>ファイルに書き込めません。</translation>
    </message>
    <message>
        <source>无法写入脚本。</source>
        <translation>スクリプトに書き込めません。</translation>
    </message>
    <message>
        <source>未知导出格式。</source>
        <translation>不明なエクスポート形式です。</translation>
    </message>
    <message>
        <source>批处理脚本无法准确指明该文件，已写为注释: %1</source>
        <translation>バッチスクリプトではこのファイルを正確に指定できないため、コメントとして記載しました: %1</translation>
    </message>
    <message>
        <source>Mirrix 重复文件扫描报告</source>
        <translation>Mirrix 重複ファイルスキャンレポート</translation>
    </message>
    <message>
        <source>生成时间: %1</source>
        <translation>作成日時: %1</translation>
    </message>
    <message>
        <source>扫描模式: %1</source>
        <translation>スキャンモード: %1</translation>
    </message>
    <message>
        <source>范围: 仅已勾选文件</source>
        <translation>範囲: チェックを入れたファイルのみ</translation>
    </message>
    <message>
        <source>说明: 路径已脱敏（用户名已隐藏）</source>
        <translation>注: パスは匿名化されています (ユーザー名は非表示)</translation>
    </message>
    <message>
        <source>[组 %1]</source>
        <translation>[グループ %1]</translation>
    </message>
    <message>
        <source> 键: %1</source>
        <translation> キー: %1</translation>
    </message>
    <message>
        <source>  (%1 个文件)</source>
        <translation>  (%1 個のファイル)</translation>
    </message>
    <message>
        <source>
部分失败：
</source>
        <translation>
一部失敗:
</translation>
    </message>
    <message>
        <source>已按规则自动勾选待处理文件</source>
        <translation>ルールに従ってファイルに自動でチェックを入れました</translation>
    </message>
    <message>
        <source>已勾选各组重复项（默认保留每组第一个）</source>
        <translation>各グループの重複にチェックを入れました (既定では先頭のファイルを保持)</translation>
    </message>
    <message>
        <source>已反选</source>
        <translation>チェックを反転しました</translation>
    </message>
    <message>
        <source>正在更新勾选…</source>
        <translation>チェックを更新しています…</translation>
    </message>
    <message>
        <source>已停止，其余文件未处理</source>
        <translation>停止しました。残りのファイルは処理していません</translation>
    </message>
    <message>
        <source>请先勾选要处理的文件。</source>
        <translation>処理するファイルに先にチェックを入れてください。</translation>
    </message>
    <message>
        <source>将把 %1 个文件移动到备份目录：
%2
是否继续？</source>
        <translation>%1 個のファイルをバックアップフォルダーに移動します:
%2
続行しますか?</translation>
    </message>
    <message>
        <source>确认备份移动</source>
        <translation>バックアップへの移動の確認</translation>
    </message>
    <message>
        <source>正在备份移动文件… (%1/%2)</source>
        <translation>バックアップに移動しています… (%1/%2)</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>已备份移动 %1 个文件。%2
请重新扫描以刷新结果。</source>
        <translation>%1 個のファイルをバックアップに移動しました。%2
結果を更新するには再スキャンしてください。</translation>
    </message>
    <message>
        <source>请先勾选要删除的文件。</source>
        <translation>削除するファイルに先にチェックを入れてください。</translation>
    </message>
    <message>
        <source>正在备份并移除文件… (%1/%2)</source>
        <translation>バックアップして削除しています… (%1/%2)</translation>
    </message>
    <message>
        <source>备份警告</source>
        <translation>バックアップの警告</translation>
    </message>
    <message>
        <source>部分文件备份失败：
%1</source>
        <translation>一部のファイルをバックアップできませんでした:
%1</translation>
    </message>
    <message>
        <source>已备份并移除 %1 个文件。请重新扫描以刷新结果。</source>
        <translation>%1 個のファイルをバックアップして削除しました。結果を更新するには再スキャンしてください。</translation>
    </message>
    <message>
        <source>永久删除确认</source>
        <translation>完全削除の確認</translation>
    </message>
    <message>
        <source>即将永久删除 %1 个文件，此操作不可撤销。是否继续？</source>
        <translation>%1 個のファイルを完全に削除します。この操作は元に戻せません。続行しますか?</translation>
    </message>
    <message>
        <source>正在移除文件… (%1/%2)</source>
        <translation>ファイルを削除しています… (%1/%2)</translation>
    </message>
    <message>
        <source>请重新扫描以刷新结果。</source>
        <translation>結果を更新するには再スキャンしてください。</translation>
    </message>
    <message>
        <source>已处理 %1 个文件。%2</source>
        <translation>%1 個のファイルを処理しました。%2</translation>
    </message>
    <message>
        <source>正在读取备份索引…</source>
        <translation>バックアップの索引を読み込んでいます…</translation>
    </message>
    <message>
        <source>备份索引为空。</source>
        <translation>バックアップの索引は空です。</translation>
    </message>
    <message>
        <source>确认恢复</source>
        <translation>復元の確認</translation>
    </message>
    <message>
        <source>将恢复：
%1</source>
        <translation>次のファイルを復元します:
%1</translation>
    </message>
    <message>
        <source>正在恢复文件… (%1/%2)</source>
        <translation>ファイルを復元しています… (%1/%2)</translation>
    </message>
    <message>
        <source>已恢复 %1 个文件。</source>
        <translation>%1 個のファイルを復元しました。</translation>
    </message>
    <message>
        <source>已再次移除 %1 个文件。</source>
        <translation>%1 個のファイルをもう一度削除しました。</translation>
    </message>
    <message>
        <source>失败</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>文件已恢复。</source>
        <translation>ファイルを復元しました。</translation>
    </message>
    <message>
        <source>快速、安全的重复文件查找与清理工具，支持常规内容、图片相似、音频指纹与视频缩略图模式。</source>
        <translation>高速で安全な重複ファイルの検索・整理ツール。通常のファイル、類似画像、音声フィンガープリント、動画サムネイルの各モードに対応しています。</translation>
    </message>
    <message>
        <source>便携模式（数据位于程序旁的 \Data）</source>
        <translation>ポータブルモード (データはプログラムと同じ場所の \Data)</translation>
    </message>
    <message>
        <source>标准模式（数据位于用户 AppData）</source>
        <translation>標準モード (データはユーザーの AppData)</translation>
    </message>
    <message>
        <source>版本 %1 · %2 · %3</source>
        <translation>バージョン %1 · %2 · %3</translation>
    </message>
    <message>
        <source>数据文件夹：%1</source>
        <translation>データフォルダー: %1</translation>
    </message>
    <message>
        <source>开源致谢</source>
        <translation>オープンソースへの謝辞</translation>
    </message>
    <message>
        <source>库</source>
        <translation>ライブラリ</translation>
    </message>
    <message>
        <source>版本</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>许可</source>
        <translation>ライセンス</translation>
    </message>
    <message>
        <source>CSV 清单 (.csv)</source>
        <translation>CSV リスト (.csv)</translation>
    </message>
    <message>
        <source>文本清单 (.txt)</source>
        <translation>テキストリスト (.txt)</translation>
    </message>
    <message>
        <source>复制文件到文件夹</source>
        <translation>ファイルをフォルダーにコピー</translation>
    </message>
    <message>
        <source>生成批处理脚本 (.bat)</source>
        <translation>バッチスクリプトを作成 (.bat)</translation>
    </message>
    <message>
        <source>文本 (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>批处理 (*.bat)</source>
        <translation>バッチ (*.bat)</translation>
    </message>
    <message>
        <source>选择目标文件夹</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>导出扫描结果</source>
        <translation>スキャン結果のエクスポート</translation>
    </message>
    <message>
        <source>导出格式</source>
        <translation>エクスポート形式</translation>
    </message>
    <message>
        <source>运行脚本会删除其中列出的每个文件，包括要保留的副本；如只删除已勾选的文件，请勾选“仅导出已勾选的文件”</source>
        <translation>スクリプトを実行すると、保持するファイルも含め、記載されたすべてのファイルが削除されます。チェックを入れたファイルのみを削除するには、「チェックを入れたファイルのみエクスポート」をオンにしてください</translation>
    </message>
    <message>
        <source>输出路径：</source>
        <translation>出力先:</translation>
    </message>
    <message>
        <source>浏览...</source>
        <translation>参照…</translation>
    </message>
    <message>
        <source>仅导出已勾选的文件</source>
        <translation>チェックを入れたファイルのみエクスポート</translation>
    </message>
    <message>
        <source>包含分组键与修改时间</source>
        <translation>グループキーと更新日時を含める</translation>
    </message>
    <message>
        <source>路径脱敏（隐藏用户名，便于分享）</source>
        <translation>パスを匿名化 (ユーザー名を隠す)</translation>
    </message>
    <message>
        <source>脱敏后的批处理脚本只供阅读，不会删除被隐藏用户名的文件</source>
        <translation>匿名化したバッチスクリプトは閲覧用です。ユーザー名を隠したファイルは削除されません</translation>
    </message>
    <message>
        <source>正在停止…</source>
        <translation>停止しています…</translation>
    </message>
    <message>
        <source>正在处理</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>完成当前文件后停止</source>
        <translation>現在のファイルの完了後に停止します</translation>
    </message>
    <message>
        <source>进度</source>
        <translation>進行状況</translation>
    </message>
    <message>
        <source>移入回收站（可恢复）</source>
        <translation>ごみ箱に移動 (復元可能)</translation>
    </message>
    <message>
        <source>永久删除</source>
        <translation>完全に削除</translation>
    </message>
    <message>
        <source>移动到指定文件夹</source>
        <translation>指定フォルダーに移動</translation>
    </message>
    <message>
        <source>删除后创建符号链接</source>
        <translation>削除後にシンボリックリンクを作成</translation>
    </message>
    <message>
        <source>删除后创建硬链接</source>
        <translation>削除後にハードリンクを作成</translation>
    </message>
    <message>
        <source>文件移除</source>
        <translation>ファイルの削除</translation>
    </message>
    <message>
        <source>即将处理 %1 个文件。请选择移除方式：</source>
        <translation>%1 個のファイルを処理します。削除方法を選択してください:</translation>
    </message>
    <message>
        <source>移除方式</source>
        <translation>削除方法</translation>
    </message>
    <message>
        <source>目标文件夹：</source>
        <translation>移動先フォルダー:</translation>
    </message>
    <message>
        <source>链接目标：</source>
        <translation>リンク先:</translation>
    </message>
    <message>
        <source>保留的文件路径（用于创建链接）</source>
        <translation>保持するファイルのパス (リンク作成用)</translation>
    </message>
    <message>
        <source>先备份再创建链接时可留空：每个链接指向本组中未勾选的文件</source>
        <translation>先にバックアップしてリンクを作成する場合は空欄で構いません。各リンクは同じグループのチェックの入っていないファイルを指します</translation>
    </message>
    <message>
        <source>移除前先备份</source>
        <translation>削除前にバックアップ</translation>
    </message>
    <message>
        <source>哈希值工具 - Mirrix</source>
        <translation>ハッシュツール - Mirrix</translation>
    </message>
    <message>
        <source>+ 选择文件</source>
        <translation>+ ファイルを選択</translation>
    </message>
    <message>
        <source>+ 选择文件夹</source>
        <translation>+ フォルダーを選択</translation>
    </message>
    <message>
        <source>重新计算</source>
        <translation>再計算</translation>
    </message>
    <message>
        <source>算法</source>
        <translation>アルゴリズム</translation>
    </message>
    <message>
        <source>添加文件夹时包含其所有下级文件夹中的文件</source>
        <translation>フォルダーの追加時に、すべてのサブフォルダー内のファイルも含めます</translation>
    </message>
    <message>
        <source>哈希值</source>
        <translation>ハッシュ値</translation>
    </message>
    <message>
        <source>可将文件或文件夹拖放到此窗口</source>
        <translation>ファイルやフォルダーをこのウィンドウにドロップできます</translation>
    </message>
    <message>
        <source>选择文件</source>
        <translation>ファイルを選択</translation>
    </message>
    <message>
        <source>选择文件夹</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>正在查找文件…</source>
        <translation>ファイルを検索しています…</translation>
    </message>
    <message>
        <source>正在计算哈希…</source>
        <translation>ハッシュを計算しています…</translation>
    </message>
    <message>
        <source>复制：哈希值</source>
        <translation>ハッシュ値をコピー</translation>
    </message>
    <message>
        <source>复制：文件名</source>
        <translation>ファイル名をコピー</translation>
    </message>
    <message>
        <source>图片对比</source>
        <translation>画像の比較</translation>
    </message>
    <message>
        <source>文件 A</source>
        <translation>ファイル A</translation>
    </message>
    <message>
        <source>文件 B</source>
        <translation>ファイル B</translation>
    </message>
    <message>
        <source>正在读取…</source>
        <translation>読み込んでいます…</translation>
    </message>
    <message>
        <source>日志为空。</source>
        <translation>ログは空です。</translation>
    </message>
    <message>
        <source>显示 %1 条，共 %2 条</source>
        <translation>%1 件を表示 (全 %2 件)</translation>
    </message>
    <message>
        <source>操作日志</source>
        <translation>操作ログ</translation>
    </message>
    <message>
        <source>筛选日志</source>
        <translation>ログを絞り込む</translation>
    </message>
    <message>
        <source>复制所选</source>
        <translation>選択項目をコピー</translation>
    </message>
    <message>
        <source>刷新</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>将删除目录下的全部图片哈希/直方图缓存：
%1

下次图片扫描会重新计算，可能稍慢。是否继续？</source>
        <translation>次のフォルダーにある画像ハッシュ/ヒストグラムのキャッシュをすべて削除します:
%1

次回の画像スキャンでは再計算のため時間がかかることがあります。続行しますか?</translation>
    </message>
    <message>
        <source>清空图片特征缓存</source>
        <translation>画像特徴キャッシュをクリア</translation>
    </message>
    <message>
        <source>图片特征缓存已清空。</source>
        <translation>画像特徴キャッシュをクリアしました。</translation>
    </message>
    <message>
        <source>部分缓存文件无法删除。</source>
        <translation>一部のキャッシュファイルを削除できませんでした。</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>オプション</translation>
    </message>
    <message>
        <source>⚙  常规</source>
        <translation>⚙  一般</translation>
    </message>
    <message>
        <source>🎨  主题</source>
        <translation>🎨  テーマ</translation>
    </message>
    <message>
        <source>ℹ  关于程序</source>
        <translation>ℹ  バージョン情報</translation>
    </message>
    <message>
        <source>常规设置</source>
        <translation>一般設定</translation>
    </message>
    <message>
        <source>关闭主窗口时</source>
        <translation>メインウィンドウを閉じるとき</translation>
    </message>
    <message>
        <source>最小化到系统托盘（推荐）</source>
        <translation>通知領域に最小化 (推奨)</translation>
    </message>
    <message>
        <source>退出程序</source>
        <translation>プログラムを終了</translation>
    </message>
    <message>
        <source>扫描</source>
        <translation>スキャン</translation>
    </message>
    <message>
        <source>扫描完成后播放提示音</source>
        <translation>スキャン完了時に音を鳴らす</translation>
    </message>
    <message>
        <source>扫描开始前显示确认对话框</source>
        <translation>スキャン開始前に確認ダイアログを表示</translation>
    </message>
    <message>
        <source>关闭后点击「开始扫描」将立即执行；也可在确认对话框中勾选「不再显示此确认」。</source>
        <translation>オフにすると、「スキャン開始」をクリックしてすぐに実行されます。確認ダイアログの「今後この確認を表示しない」でも設定できます。</translation>
    </message>
    <message>
        <source>内容指纹算法</source>
        <translation>内容フィンガープリントのアルゴリズム</translation>
    </message>
    <message>
        <source>MD5（默认，沿用现有指纹缓存）</source>
        <translation>MD5 (既定、現在のフィンガープリントキャッシュを引き続き使用)</translation>
    </message>
    <message>
        <source>BLAKE3（更快、更强；切换后重建缓存）</source>
        <translation>BLAKE3 (より高速・強力、切り替え後にキャッシュを再作成)</translation>
    </message>
    <message>
        <source>仅影响「相同内容」精确查重的 quick/full 哈希；相似内容采样仍使用 MD5。</source>
        <translation>「同じ内容」の正確な照合でのクイックハッシュと完全ハッシュにのみ影響します。類似内容のサンプルには引き続き MD5 を使用します。</translation>
    </message>
    <message>
        <source>缓存与数据</source>
        <translation>キャッシュとデータ</translation>
    </message>
    <message>
        <source>图片特征缓存可加快重复图片的扫描。位置：</source>
        <translation>画像特徴キャッシュにより、重複画像のスキャンが速くなります。場所:</translation>
    </message>
    <message>
        <source>清除已缓存的感知哈希与直方图，下次扫描会重新计算</source>
        <translation>キャッシュされた知覚ハッシュとヒストグラムを消去します。次回のスキャンで再計算されます</translation>
    </message>
    <message>
        <source>主题</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>浅色（Fusion）</source>
        <translation>ライト (Fusion)</translation>
    </message>
    <message>
        <source>深色（Fusion）</source>
        <translation>ダーク (Fusion)</translation>
    </message>
    <message>
        <source>使用 Qt Fusion 样式，立即生效并自动保存。</source>
        <translation>Qt Fusion スタイルを使用します。すぐに適用され、自動的に保存されます。</translation>
    </message>
    <message>
        <source>恢复备份</source>
        <translation>バックアップの復元</translation>
    </message>
    <message>
        <source>选择要恢复的文件：</source>
        <translation>復元するファイル:</translation>
    </message>
    <message>
        <source>按路径筛选</source>
        <translation>パスで絞り込む</translation>
    </message>
    <message>
        <source>
无法放回的文件（%1 个）：
</source>
        <translation>
元に戻せないファイル (%1 個):
</translation>
    </message>
    <message>
        <source>
无法再次移除的文件（%1 个）：
</source>
        <translation>
もう一度削除できないファイル (%1 個):
</translation>
    </message>
    <message>
        <source>%1 个文件（%2）不会被移除：只在路径已空出时创建链接。要用链接代替文件，请先备份。</source>
        <translation>%1 個のファイル (%2) は削除されません。リンクはパスが空いている場合にのみ作成されます。ファイルをリンクに置き換えるには、先にバックアップしてください。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站，无法找回。</source>
        <translation>%1 個のファイル (%2) を完全に削除します。ごみ箱には入らず、元に戻せません。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将永久删除，不进回收站；可以用保留的副本重新生成。</source>
        <translation>%1 個のファイル (%2) を完全に削除します。ごみ箱には入りませんが、保持するファイルから作り直せます。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移入回收站，清空回收站后才释放空间。</source>
        <translation>%1 個のファイル (%2) をごみ箱に移動します。空き容量はごみ箱を空にすると増えます。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不会永久删除。</source>
        <translation>%1 個のファイル (%2) をバックアップフォルダーに移動します。完全に削除されるものはありません。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用回收站。</source>
        <translation>%1 個のファイル (%2) をバックアップフォルダーに移動します。ごみ箱は使用しません。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，不使用目标文件夹。</source>
        <translation>%1 個のファイル (%2) をバックアップフォルダーに移動します。移動先フォルダーは使用しません。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到备份文件夹，原位置由链接代替。</source>
        <translation>%1 個のファイル (%2) をバックアップフォルダーに移動し、元の場所にリンクを置きます。</translation>
    </message>
    <message>
        <source>%1 个文件（%2）将移动到目标文件夹。</source>
        <translation>%1 個のファイル (%2) を移動先フォルダーに移動します。</translation>
    </message>
    <message>
        <source>不勾选时，回收、移动和备份前只比较抽样内容；永久删除和创建链接前总是比较全部内容</source>
        <translation>チェックを入れない場合、ごみ箱への移動、移動、バックアップの前には一部の内容だけを比較します。完全な削除とリンク作成の前には常に全体を比較します</translation>
    </message>
    <message>
        <source>仍占用</source>
        <translation>使用中</translation>
    </message>
    <message>
        <source>保留记录（天）：</source>
        <translation>記録の保持 (日):</translation>
    </message>
    <message>
        <source>全部处理</source>
        <translation>すべて処理</translation>
    </message>
    <message>
        <source>内容与要保留的文件不同，已保留: %1</source>
        <translation>保持するファイルと内容が異なるため残しました: %1</translation>
    </message>
    <message>
        <source>决定移除对话框打开时是否已勾选「移除前先备份」；备份的文件移入备份文件夹，不会删除</source>
        <translation>削除ダイアログを開いたとき「削除前にバックアップ」にチェックを入れておくかどうか。ファイルはバックアップフォルダーに移動し、削除されません</translation>
    </message>
    <message>
        <source>删除更早的记录</source>
        <translation>古い記録を削除</translation>
    </message>
    <message>
        <source>删除记录</source>
        <translation>記録を削除</translation>
    </message>
    <message>
        <source>回收站中保留 %1</source>
        <translation>ごみ箱で使用中: %1</translation>
    </message>
    <message>
        <source>在历史中显示</source>
        <translation>履歴に表示</translation>
    </message>
    <message>
        <source>备份中保留：%1</source>
        <translation>バックアップで使用中: %1</translation>
    </message>
    <message>
        <source>备份文件夹中保留 %1</source>
        <translation>バックアップフォルダーで使用中: %1</translation>
    </message>
    <message>
        <source>失败：%1</source>
        <translation>失敗: %1</translation>
    </message>
    <message>
        <source>将删除 %1 条清理记录。文件不受影响，但之后无法在此撤销这些清理。是否继续？</source>
        <translation>%1 件のクリーンアップの記録を削除します。ファイルはそのままですが、ここで取り消せなくなります。続行しますか？</translation>
    </message>
    <message>
        <source>将把 %1 个文件放回原处。是否继续？</source>
        <translation>%1 個のファイルを元に戻します。続行しますか？</translation>
    </message>
    <message>
        <source>将再次移除 %1 个文件（%2）。是否继续？</source>
        <translation>%1 個のファイルをもう一度削除します (%2)。続行しますか？</translation>
    </message>
    <message>
        <source>将永久删除此次清理留在备份文件夹中的文件（%1），之后无法从备份恢复。是否继续？</source>
        <translation>このクリーンアップでバックアップフォルダーに残したファイル (%1) を完全に削除します。バックアップから復元できなくなります。続行しますか？</translation>
    </message>
    <message>
        <source>已中断</source>
        <translation>中断</translation>
    </message>
    <message>
        <source>已停止，未处理: %1</source>
        <translation>停止したため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>已删除 %1 个备份文件。</source>
        <translation>%1 個のバックアップファイルを削除しました。</translation>
    </message>
    <message>
        <source>已完成</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>已撤销</source>
        <translation>取り消し済み</translation>
    </message>
    <message>
        <source>已放回原处</source>
        <translation>元に戻しました</translation>
    </message>
    <message>
        <source>已移除</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>已释放</source>
        <translation>解放済み</translation>
    </message>
    <message>
        <source>已释放 %1</source>
        <translation>%1 を解放しました</translation>
    </message>
    <message>
        <source>所有者或权限与链接目标不同，未处理: %1</source>
        <translation>所有者またはアクセス許可がリンク先と異なるため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>撤销了 %1</source>
        <translation>%1 を取り消し</translation>
    </message>
    <message>
        <source>撤销所选文件</source>
        <translation>選択したファイルを取り消す</translation>
    </message>
    <message>
        <source>撤销此次清理</source>
        <translation>このクリーンアップを取り消す</translation>
    </message>
    <message>
        <source>撤销清理</source>
        <translation>クリーンアップの取り消し</translation>
    </message>
    <message>
        <source>重新清理</source>
        <translation>クリーンアップのやり直し</translation>
    </message>
    <message>
        <source>文件仍在回收站中，可从那里恢复: %1</source>
        <translation>ファイルはまだごみ箱にあり、そこから復元できます: %1</translation>
    </message>
    <message>
        <source>文件已存在，是否替换？
%1</source>
        <translation>ファイルは既に存在します。置き換えますか？
%1</translation>
    </message>
    <message>
        <source>文件数 / 保留的副本</source>
        <translation>ファイル数 / 保持するファイル</translation>
    </message>
    <message>
        <source>文件正被其他程序使用，未处理: %1</source>
        <translation>ほかのプログラムが使用中のため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>方式 / 现在位置</source>
        <translation>方法 / 現在の場所</translation>
    </message>
    <message>
        <source>无法写入操作日志: %1</source>
        <translation>操作ログに書き込めません: %1</translation>
    </message>
    <message>
        <source>无法写入操作记录，未处理任何文件: %1</source>
        <translation>クリーンアップの記録を書き込めないため、ファイルを処理しませんでした: %1</translation>
    </message>
    <message>
        <source>无法更新备份索引: %1</source>
        <translation>バックアップの索引を更新できません: %1</translation>
    </message>
    <message>
        <source>无法确保要保留的文件已写入磁盘，未处理: %1</source>
        <translation>保持するファイルがディスクに書き込まれたことを確認できないため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>无法读取</source>
        <translation>読み取り不可</translation>
    </message>
    <message>
        <source>无结果记录</source>
        <translation>結果の記録なし</translation>
    </message>
    <message>
        <source>时间 / 文件</source>
        <translation>日時 / ファイル</translation>
    </message>
    <message>
        <source>有 %1 条记录无法删除。</source>
        <translation>%1 件の記録を削除できませんでした。</translation>
    </message>
    <message>
        <source>有 %1 组将不会留下任何副本。</source>
        <translation>%1 個のグループにファイルが 1 つも残りません。</translation>
    </message>
    <message>
        <source>正在删除备份… (%1/%2)</source>
        <translation>バックアップを削除しています… (%1/%2)</translation>
    </message>
    <message>
        <source>正在检查文件… (%1/%2)</source>
        <translation>ファイルを確認しています… (%1/%2)</translation>
    </message>
    <message>
        <source>每次移除前比较全部内容</source>
        <translation>削除の前に毎回内容全体を比較する</translation>
    </message>
    <message>
        <source>每组取消勾选一个</source>
        <translation>各グループで 1 つチェックを外す</translation>
    </message>
    <message>
        <source>永久</source>
        <translation>無期限</translation>
    </message>
    <message>
        <source>没有保留的副本</source>
        <translation>残るファイルがありません</translation>
    </message>
    <message>
        <source>没有可以放回的文件。</source>
        <translation>元に戻せるファイルはありません。</translation>
    </message>
    <message>
        <source>没有可以再次移除的文件。</source>
        <translation>もう一度削除できるファイルはありません。</translation>
    </message>
    <message>
        <source>没有更早的记录。</source>
        <translation>それより古い記録はありません。</translation>
    </message>
    <message>
        <source>没有清理记录。</source>
        <translation>クリーンアップの記録はありません。</translation>
    </message>
    <message>
        <source>清理历史</source>
        <translation>クリーンアップの履歴</translation>
    </message>
    <message>
        <source>清理历史(&amp;C)…</source>
        <translation>クリーンアップの履歴(&amp;C)…</translation>
    </message>
    <message>
        <source>目标文件夹包含该文件，未处理: %1</source>
        <translation>移動先フォルダーがそのファイルを含むため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>硬链接</source>
        <translation>ハードリンク</translation>
    </message>
    <message>
        <source>确认替换</source>
        <translation>置き換えの確認</translation>
    </message>
    <message>
        <source>移入回收站</source>
        <translation>ごみ箱に移動</translation>
    </message>
    <message>
        <source>删除空文件夹</source>
        <translation>空のフォルダーを削除</translation>
    </message>
    <message>
        <source>移动到文件夹</source>
        <translation>フォルダーに移動</translation>
    </message>
    <message>
        <source>符号链接</source>
        <translation>シンボリックリンク</translation>
    </message>
    <message>
        <source>要保留的文件已不在原处，或经由另一路径就是该文件本身，未处理: %1</source>
        <translation>保持するファイルが元の場所にないか、別のパスでこのファイル自身を指しているため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>部分已撤销</source>
        <translation>一部取り消し済み</translation>
    </message>
    <message>
        <source>部分组不是按内容匹配的，处理前不会比较这些文件的内容。</source>
        <translation>内容で照合していないグループがあります。それらのファイルは削除の前に比較されません。</translation>
    </message>
    <message>
        <source>释放 %1</source>
        <translation>%1 を解放</translation>
    </message>
    <message>
        <source>释放备份</source>
        <translation>バックアップを解放</translation>
    </message>
    <message>
        <source>恢复所选</source>
        <translation>選択項目を復元</translation>
    </message>
    <message>
        <source>正在复制文件… (%1/%2)</source>
        <translation>ファイルをコピーしています… (%1/%2)</translation>
    </message>
    <message>
        <source>正在导出… (%1/%2)</source>
        <translation>エクスポートしています… (%1/%2)</translation>
    </message>
    <message>
        <source>错误</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>导出失败。</source>
        <translation>エクスポートに失敗しました。</translation>
    </message>
    <message>
        <source>导出警告</source>
        <translation>エクスポートの警告</translation>
    </message>
    <message>
        <source>部分文件未能导出：
%1</source>
        <translation>一部のファイルをエクスポートできませんでした:
%1</translation>
    </message>
    <message>
        <source>已复制文件到：%1
%2</source>
        <translation>コピー先: %1
%2</translation>
    </message>
    <message>
        <source>已导出：%1</source>
        <translation>エクスポートしました: %1</translation>
    </message>
    <message>
        <source>没有可导出的结果。</source>
        <translation>エクスポートする結果がありません。</translation>
    </message>
    <message>
        <source>请指定输出路径。</source>
        <translation>出力先を指定してください。</translation>
    </message>
    <message>
        <source>…… 另有 %1 行，见详细信息</source>
        <translation>… ほか %1 行 (詳細を参照)</translation>
    </message>
    <message>
        <source>…… 另有 %1 行未显示</source>
        <translation>… ほか %1 行は省略</translation>
    </message>
    <message>
        <source>链接目标属于另一组，未处理: %1</source>
        <translation>リンク先が別のグループに属するため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>没有可链接的保留文件，未处理: %1</source>
        <translation>リンク先となる保持対象のファイルがないため処理しませんでした: %1</translation>
    </message>
    <message>
        <source>共 %1 个文件</source>
        <translation>%1 個のファイル</translation>
    </message>
    <message>
        <source>共 %1 个文件 @ %2.%3 秒</source>
        <translation>%1 個のファイル @ %2.%3 秒</translation>
    </message>
    <message>
        <source>路径: %1
大小: %2 字节
修改: %3</source>
        <translation>パス: %1
サイズ: %2 バイト
更新: %3</translation>
    </message>
    <message>
        <source>
GPS: %1, %2</source>
        <translation>
GPS: %1, %2</translation>
    </message>
    <message>
        <source>时间</source>
        <translation>日時</translation>
    </message>
    <message>
        <source>操作</source>
        <translation>操作</translation>
    </message>
    <message>
        <source>详情</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>程序启动</source>
        <translation>プログラムの起動</translation>
    </message>
    <message>
        <source>扫描开始</source>
        <translation>スキャン開始</translation>
    </message>
    <message>
        <source>备份已恢复</source>
        <translation>バックアップから復元</translation>
    </message>
    <message>
        <source>要移除的空文件夹</source>
        <translation>削除する空のフォルダー</translation>
    </message>
    <message>
        <source>空文件夹已移除</source>
        <translation>空のフォルダーを削除</translation>
    </message>
    <message>
        <source>程序退出</source>
        <translation>プログラム終了</translation>
    </message>
    <message>
        <source>扫描完成</source>
        <translation>スキャン完了</translation>
    </message>
    <message>
        <source>按规则勾选</source>
        <translation>ルールに従いチェック</translation>
    </message>
    <message>
        <source>移动到备份</source>
        <translation>バックアップに移動</translation>
    </message>
    <message>
        <source>备份并移除</source>
        <translation>バックアップして削除</translation>
    </message>
    <message>
        <source>移除文件</source>
        <translation>ファイルを削除</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>导出副本</source>
        <translation>コピーをエクスポート</translation>
    </message>
    <message>
        <source>恢复备份…</source>
        <translation>バックアップの復元…</translation>
    </message>
    <message>
        <source>结果已清空。切换Tab调整规则后可重新开始扫描。</source>
        <translation>結果をクリアしました。タブを切り替えてルールを調整し、再度スキャンできます。</translation>
    </message>
    <message>
        <source>请选中同一组内的两个图片文件进行对比。</source>
        <translation>同じグループ内の画像ファイルを 2 つ選択して比較してください。</translation>
    </message>
    <message>
        <source>没有匹配的记录。</source>
        <translation>一致する記録はありません。</translation>
    </message>
    <message>
        <source>没有匹配的文件。</source>
        <translation>一致するファイルはありません。</translation>
    </message>
    <message>
        <source>还没有扫描位置。
点击“+文件夹”，在左侧选择，或把文件夹拖放、粘贴到这里。</source>
        <translation>スキャン場所がまだありません。
「+ フォルダー」を押すか、左側で選ぶか、フォルダーをここにドロップまたは貼り付けてください。</translation>
    </message>
    <message>
        <source>扫描后在这里显示结果。</source>
        <translation>スキャン後に結果がここに表示されます。</translation>
    </message>
    <message>
        <source>没有找到重复文件。</source>
        <translation>重複ファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>没有找到重复文件夹。</source>
        <translation>重複フォルダーは見つかりませんでした。</translation>
    </message>
    <message>
        <source>没有列出其余文件。
要查看它们，请在扫描位置中打开“显示其余文件”，然后重新扫描。</source>
        <translation>その他のファイルは表示されていません。
表示するには、スキャン場所の「その他のファイルを表示」をオンにして、もう一度スキャンしてください。</translation>
    </message>
    <message>
        <source>筛选只改变列表中显示的内容，勾选与批量操作仍针对全部结果。</source>
        <translation>フィルターは一覧の表示だけを変えます。チェックと一括操作は引き続きすべての結果が対象です。</translation>
    </message>
</context>
</TS>
